#include "desktop/forms/renamer_window.h"

#include "desktop/bind/drag.h"
#include "desktop/bind/label_binding.h"
#include "desktop/bind/label_button.h"
#include "desktop/icons.h"
#include "desktop/window/headings.h"
#include "desktop/window/hint.h"
#include "desktop/words.h"
#include "dials/rename_pass.h"
#include "text/history.h"

#include <QApplication>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <utility>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 860;
constexpr int kHeight = 560;
constexpr int kFilesWidth = 280;
constexpr int kTargetIcon = 48;
constexpr std::size_t kMostRows = 500;

/// The picked file's name, which can be carried to the picture.
class DragName : public QLabel {
 public:
  DragName(const front::Label& label, QWidget* parent) : QLabel(parent), label_(label) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setMargin(kPaneMargin / 2);
    setCursor(Qt::OpenHandCursor);
    setTextFormat(Qt::PlainText);
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override { pressedAt_ = event->position().toPoint(); }
  void mouseMoveEvent(QMouseEvent* event) override {
    const QPoint way = event->position().toPoint() - pressedAt_;
    const bool far = way.manhattanLength() >= QApplication::startDragDistance();
    if (event->buttons().testFlag(Qt::LeftButton) && far) dragControl(label_, *this, text());
  }

 private:
  const front::Label& label_;
  QPoint pressedAt_;
};

QString lineText(const std::string& line) {
  return shown(line).replace(QLatin1Char('\t'), QStringLiteral("    "));
}

}  // namespace

RenamerWindow::RenamerWindow(const WindowParts& parts, dials::Renamer& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent),
      session_(parts.session),
      form_(form) {
  auto* whole = new QVBoxLayout(this);
  whole->setSpacing(kPaneMargin);
  auto* sides = new QHBoxLayout;
  sides->setSpacing(2 * kPaneMargin);
  sides->addLayout(makeFiles());
  auto* right = new QVBoxLayout;
  right->setSpacing(kPaneMargin);
  right->addLayout(makeDirections());
  right->addLayout(makeTarget());
  outcome_ = new QLabel(this);
  outcome_->setObjectName(QStringLiteral("Outcome"));
  outcome_->setWordWrap(true);
  right->addWidget(outcome_);
  changes_ = new QTreeWidget(this);
  changes_->setObjectName(QStringLiteral("Preview"));
  changes_->setAccessibleName(QStringLiteral("Lines that will change"));
  changes_->setHeaderLabels(
      {QStringLiteral("Line"), QStringLiteral("Now"), QStringLiteral("Then")});
  changes_->setRootIsDecorated(false);
  changes_->setUniformRowHeights(true);
  changes_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  changes_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  right->addWidget(changes_, 1);
  sides->addLayout(right, 1);
  whole->addLayout(sides, 1);
  whole->addLayout(makeButtons());
  resize(kWidth, kHeight);
}

QLayout* RenamerWindow::makeFiles() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kPaneMargin / 2);
  const auto add = [&](const QString& heading, front::Control& list, int stretch) {
    QWidget* widget = maker().make(list, *this);
    if (widget == nullptr) return;
    auto* label = new QLabel(heading, this);
    makeHeading(*label);
    label->setBuddy(widget);
    widget->setMinimumWidth(kFilesWidth);
    column->addWidget(label);
    column->addWidget(widget, stretch);
  };
  add(QStringLiteral("Drive"), form_.Drive1, 0);
  add(QStringLiteral("Folder"), form_.Dir1, 2);
  add(QStringLiteral("File"), form_.File1, 3);
  return column;
}

QLayout* RenamerWindow::makeDirections() {
  auto* row = new QHBoxLayout;
  const auto add = [&](front::Label& label, const QString& tip) {
    auto* button = new QRadioButton(this);
    button->setAutoExclusive(false);  // the form knows which one counts
    button->setToolTip(tip);
    maker().bindings().add(
        std::make_unique<LabelButtonBinding>(maker().dispatcher(), label, *button));
    row->addWidget(button, 1);
    return button;
  };
  friendly_ =
      add(form_.LabelFriendly, QStringLiteral("GetStringRes(1028,4) becomes Bend: names to read"));
  getSR_ = add(form_.LabelGetSR,
               QStringLiteral("Bend becomes GetStringRes(1028,4), which every Poser translates"));
  return row;
}

QLayout* RenamerWindow::makeTarget() {
  auto* row = new QHBoxLayout;
  auto* names = new QVBoxLayout;
  auto* heading = new QLabel(QStringLiteral("Picked file"), this);
  makeHeading(*heading);
  names->addWidget(heading);
  auto* name = new DragName(form_.Label1, this);
  maker().bindings().add(std::make_unique<LabelBinding>(maker().dispatcher(), form_.Label1, *name));
  name->setToolTip(QStringLiteral("Drag it to the picture"));
  names->addWidget(name);
  names->addWidget(makeHint(QStringLiteral("Drag the name to the picture, drop a file of the "
                                           "desktop there, or press Rename."),
                            *this));
  row->addLayout(names, 1);
  QToolButton& target = maker().picture(form_.Picture1, *this, kTargetIcon);
  target.setIcon(pictureNamed(QStringLiteral("rename")));
  target.setText(QStringLiteral("Drop here"));
  target.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  target.setAutoRaise(false);
  target.setToolTip(QStringLiteral("Drop the picked file or one of the desktop here"));
  target.setAccessibleName(QStringLiteral("Drop the picked file here to rename its dials"));
  row->addWidget(&target);
  return row;
}

QLayout* RenamerWindow::makeButtons() {
  auto* row = new QHBoxLayout;
  const auto add = [&](const QString& text, std::function<void()> act) {
    auto* button = new QPushButton(text, this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, std::move(act));
    row->addWidget(button);
    return button;
  };
  add(QStringLiteral("Help"), [this] {
    maker().dispatcher().raise(form_.MenuHelp.clicked);
  })->setObjectName(QString::fromStdString(form_.MenuHelp.name()));
  undo_ = add(QStringLiteral("Undo"), [this] { undo(); });
  undo_->setObjectName(QStringLiteral("UndoRenaming"));
  undo_->setToolTip(QStringLiteral("Put the file back as it was before the last renaming"));
  row->addStretch();
  QPushButton* rename = add(QStringLiteral("Rename"), [this] {
    maker().dispatcher().raise(form_.Picture1.dropped, form_.Label1);
  });
  rename->setObjectName(QStringLiteral("Rename"));
  rename->setDefault(true);
  add(QStringLiteral("Close"), [this] { close(); });
  return row;
}

void RenamerWindow::rest() {
  if (!form_.loaded()) return;
  friendly_->setChecked(form_.chosen == dials::Direction::toFriendly);
  getSR_->setChecked(form_.chosen == dials::Direction::toGetStringRes);
  std::string present = form_.pickedFile + '|' + std::to_string(form_.passes);
  if (form_.chosen) present += *form_.chosen == dials::Direction::toFriendly ? "|f" : "|g";
  if (std::exchange(previewOf_, present) == present) return;
  showPreview();
  showUndo();
}

void RenamerWindow::showPreview() {
  changes_->clear();
  if (form_.pickedFile.empty() || !form_.chosen) {
    outcome_->setText(QStringLiteral("Pick a file and a direction to see what will change."));
    return;
  }
  dials::Preview preview;
  const bool readable = text::ignoringErrors([&] {
    preview = dials::previewOf(session_.disk, form_.pickedFile, *form_.chosen, kMostRows);
  });
  if (!readable) {
    outcome_->setText(QStringLiteral("The file cannot be read."));
    return;
  }
  QString words = preview.changes == 0   ? QStringLiteral("No line will change.")
                  : preview.changes == 1 ? QStringLiteral("One line will change:")
                                         : QStringLiteral("%L1 lines will change:");
  if (preview.changes > 1) words = words.arg(preview.changes);
  if (preview.changes > preview.first.size()) {
    words += QStringLiteral(" the first %1 of them are").arg(preview.first.size());
  }
  outcome_->setText(words);
  QList<QTreeWidgetItem*> rows;
  for (const dials::LineChange& change : preview.first) {
    rows.append(new QTreeWidgetItem(
        {QString::number(change.line), lineText(change.before), lineText(change.after)}));
  }
  changes_->addTopLevelItems(rows);
}

/// Whether the newest thing in the history is a renaming.
void RenamerWindow::showUndo() {
  text::History* const history = session_.disk.history();
  undo_->setVisible(history != nullptr);
  if (history == nullptr) return;
  const auto entries = history->entries();
  undo_->setEnabled(!entries.empty() && entries.front().tool == session_.nameOf(form_.Picture1));
}

void RenamerWindow::undo() {
  text::History* const history = session_.disk.history();
  if (history == nullptr) return;
  const auto entries = history->entries();
  if (entries.empty()) return;
  previewOf_.clear();
  maker().dispatcher().run("Undo", [&] { session_.disk.restore(entries.front()); });
}

}  // namespace norvik::desktop
