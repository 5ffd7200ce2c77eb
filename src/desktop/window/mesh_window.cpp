#include "desktop/window/mesh_window.h"

#include "desktop/elided_label.h"
#include "desktop/history/history_news.h"
#include "desktop/link_line.h"
#include "desktop/window/headings.h"
#include "desktop/window/list_filter.h"
#include "desktop/window/mesh_panes.h"
#include "desktop/window/view_stack.h"
#include "desktop/words.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace norvik::desktop {

namespace {

constexpr int kSideWidth = 380;
constexpr int kPermille = 1000;

bool typesInto(const QWidget* widget) {
  return qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(widget) != nullptr;
}

/// Whether Space ticks a row there.
bool takesTicks(const QObject* watched) {
  const auto* rows = qobject_cast<const QAbstractItemView*>(watched);
  return rows != nullptr && rows->currentIndex().flags().testFlag(Qt::ItemIsUserCheckable);
}

}  // namespace

MeshWindow::MeshWindow(Maker& maker, front::Session& session, front::FormOBJ& form,
                       DesktopFrontEnd& frontEnd, std::function<void()> unload, QWidget* parent)
    : FormWindow(maker, form, std::move(unload), parent),
      mesh_(form),
      passStop_(frontEnd.passStop()) {
  setWindowFlags(Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(makeMeshTools(maker, form, *this));

  auto* middle = new QHBoxLayout;
  middle->setContentsMargins(kPaneMargin, 4, kPaneMargin, 4);
  middle->setSpacing(kPaneMargin);
  views_ = new ViewStack(maker, form, frontEnd, this);
  middle->addWidget(views_, 1);
  auto* side = new QScrollArea(this);
  side->setObjectName(QStringLiteral("MeshSideRoom"));
  side->setFrameStyle(QFrame::NoFrame);
  side->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  side->setWidgetResizable(true);
  side->setFocusPolicy(Qt::NoFocus);
  side->setWidget(makeSide(session, form));
  side->setFixedWidth(kSideWidth + side->verticalScrollBar()->sizeHint().width());
  middle->addWidget(side);
  column->addLayout(middle, 1);
  column->addWidget(makeStatus(session, form));
  keepTheKeys();
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this,
          [this] { openFilter(*this); });
  setBusy(false);
}

QWidget* MeshWindow::makeSide(front::Session& session, front::FormOBJ& form) {
  auto* side = new QWidget(this);
  side->setObjectName(QStringLiteral("MeshSide"));
  side->setFixedWidth(kSideWidth);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(makeMeshOptions(maker(), form, *side));
  column->addWidget(makeMeshSurgery(maker(), session, form, *side));
  column->addWidget(makeMeshLists(maker(), session, form, *side), 1);
  bindTheRest(form, *side);
  maker().cover(form.ImageRDS, *side, QStringLiteral("boss_chart"));
  return side;
}

/// The lists and labels that hold state: should a tool show one, it is seen.
void MeshWindow::bindTheRest(front::FormOBJ& form, QWidget& side) {
  constexpr int kFewRows = 90;
  auto* column = qobject_cast<QVBoxLayout*>(side.layout());
  const auto elsewhere = [&form](const front::Control* control) {
    return control == &form.LabelWait || control == &form.ImageRDS;
  };
  for (front::Control* control : form.controls()) {
    if (maker().bindings().bound(*control) || elsewhere(control)) continue;
    QWidget* widget = maker().make(*control, side);
    if (widget == nullptr) continue;
    if (qobject_cast<QAbstractScrollArea*>(widget) != nullptr) widget->setMaximumHeight(kFewRows);
    column->addWidget(widget);
    widget->setVisible(control->visible());
  }
}

QWidget* MeshWindow::makeStatus(front::Session& session, front::FormOBJ& form) {
  constexpr int kProgressWidth = 200;
  auto* bar = new QWidget(this);
  auto* line = new QHBoxLayout(bar);
  line->setContentsMargins(kPaneMargin, 2, kPaneMargin, 6);
  auto* file = new ElidedLabel(bar);
  file->setAccessibleName(QStringLiteral("Mesh file"));
  file->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  front::Label& name = session.opening.LabelOBJFileName;
  maker().watch({&name}, [file, &name] { file->setText(shown(name.caption())); });
  line->addWidget(file, 1);
  line->addWidget(&maker().label(form.LabelWait, *bar));
  state_ = new QLabel(bar);
  line->addWidget(state_);
  line->addWidget(makeHistoryNews(*bar));
  progress_ = new QProgressBar(bar);
  progress_->setObjectName(QStringLiteral("MeshProgress"));
  progress_->setAccessibleName(QStringLiteral("Progress"));
  progress_->setRange(0, kPermille);
  progress_->setTextVisible(false);
  progress_->setFixedSize(kProgressWidth, 10);
  line->addWidget(progress_);
  cancel_ = &passStop_.addButton(*bar);
  // The views keep their size when it comes and goes.
  QSizePolicy policy = cancel_->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  cancel_->setSizePolicy(policy);
  line->addWidget(cancel_);
  return bar;
}

void MeshWindow::setBusy(bool busy) {
  state_->setText(busy ? QStringLiteral("Working ...") : QString());
  progress_->setValue(0);
  progress_->setVisible(false);
}

void MeshWindow::rest() {
  progress_->hide();
}

void MeshWindow::setProgress(std::uint64_t position, std::uint64_t size) {
  constexpr std::uint64_t kLarge = std::uint64_t{1} << 20U;
  if (size < kLarge || state_->text().isEmpty()) return;
  progress_->setValue(static_cast<int>(std::min(position, size) * kPermille / size));
  progress_->show();
  cancel_->setVisible(passStop_.running());
}

void MeshWindow::say(const QString& text) {
  state_->setText(text);
}

/// Lists would look for an item that begins with the key, and an option would be chosen by a blank;
/// here the keys move the view, wherever the operator clicked last.
void MeshWindow::keepTheKeys() {
  for (QWidget* widget : findChildren<QWidget*>()) {
    const bool taker = qobject_cast<QAbstractItemView*>(widget) != nullptr ||
                       qobject_cast<QRadioButton*>(widget) != nullptr;
    if (taker) widget->installEventFilter(this);
    // A click on a button leaves the keys where they are; Tab reaches it.
    if (qobject_cast<QAbstractButton*>(widget) != nullptr) widget->setFocusPolicy(Qt::TabFocus);
    if (auto* button = qobject_cast<QPushButton*>(widget)) button->setAutoDefault(false);
  }
}

bool MeshWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return FormWindow::eventFilter(watched, event);
  const auto& pressed = *static_cast<QKeyEvent*>(event);
  if (uncover(pressed) || unmark(pressed)) return true;
  const std::string key = keyName(*static_cast<QKeyEvent*>(event));
  // Space is the view's, so Enter chooses an option.
  if (auto* option = qobject_cast<QRadioButton*>(watched); option != nullptr && key == "Enter") {
    option->click();
    return true;
  }
  const bool ofTheView = (key == "Space" && !takesTicks(watched)) || key.size() == 1;
  return ofTheView ? deliverKey(key) : FormWindow::eventFilter(watched, event);
}

void MeshWindow::keyPressEvent(QKeyEvent* event) {
  if (uncover(*event) || unmark(*event)) return;
  // Out of what one types into the keys go back to the views.
  if (event->key() == Qt::Key_Escape && focusWidget() != views_ && typesInto(focusWidget())) {
    views_->setFocus(Qt::OtherFocusReason);
  } else {
    FormWindow::keyPressEvent(event);
  }
}

/// The work comes back from under the boss's pictures.
bool MeshWindow::uncover(const QKeyEvent& event) {
  if (event.key() != Qt::Key_Escape || !mesh_.ImageBoss.visible()) return false;
  maker().dispatcher().raise(mesh_.ImageBoss.clicked);
  return true;
}

bool MeshWindow::unmark(const QKeyEvent& event) {
  if (event.key() != Qt::Key_Escape || !mesh_.Mark) return false;
  const front::MarkWanted again{.materials = mesh_.Mark->materials, .name = mesh_.Mark->name};
  maker().dispatcher().raise(mesh_.markWanted, again);
  return true;
}

void MeshWindow::showEvent(QShowEvent* event) {
  FormWindow::showEvent(event);
  views_->setFocus();
  if (std::exchange(placed_, true)) return;
  const QSize room = screen()->availableSize() * 0.94;
  resize(sizeHint().boundedTo(room));
}

}  // namespace norvik::desktop
