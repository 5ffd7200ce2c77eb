#include "desktop/forms/scale_window.h"

#include "desktop/window/headings.h"
#include "desktop/window/hint.h"
#include "desktop/words.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 560;
constexpr int kHeight = 460;

}  // namespace

ScaleWindow::ScaleWindow(const WindowParts& parts, tools::FormScale& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent),
      session_(parts.session),
      form_(form) {
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  addBoxes(*column);
  addSheet(*column);
  addButtons(*column);
  resize(kWidth, kHeight);
}

void ScaleWindow::addBoxes(QLayout& column) {
  auto* boxes = new QFormLayout;
  const auto add = [&](front::Label& label, front::TextBox& box) {
    QLabel& text = maker().label(label, *this);
    QLineEdit& line = maker().line(box, *this);
    text.setBuddy(&line);
    line.setMaximumWidth(line.fontMetrics().averageCharWidth() * 16);
    boxes->addRow(&text, &line);
  };
  add(form_.LabelSize, form_.TextHorizontal);
  add(form_.LabelVertical, form_.TextVertical);
  auto* holder = new QWidget(this);
  holder->setLayout(boxes);
  boxes->setContentsMargins(0, 0, 0, 0);
  column.addWidget(holder);
  maker().showWhileAny(*holder, {&form_.TextHorizontal, &form_.TextVertical});
  place_ = makeHint({}, *this);
  place_->setObjectName(QStringLiteral("Place"));
  column.addWidget(place_);
}

void ScaleWindow::addSheet(QLayout& column) {
  auto* area = new QScrollArea(this);
  SurfaceView& sheet = maker().surface(form_.Picture1, *area);
  sheet.setAccessibleName(QStringLiteral("The sheet"));
  area->setWidget(&sheet);
  area->setAlignment(Qt::AlignCenter);
  area->setFocusPolicy(Qt::NoFocus);
  column.addWidget(area);
  maker().watch({&form_.Picture1}, [this, &sheet] {
    sheet.resize(form_.Picture1.surface().width(), form_.Picture1.surface().height());
  });
}

void ScaleWindow::addButtons(QLayout& column) {
  auto* holder = new QWidget(this);
  auto* row = new QHBoxLayout(holder);
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch();
  go_ = new QPushButton(holder);
  go_->setObjectName(QStringLiteral("Go"));
  go_->setDefault(true);
  connect(go_, &QPushButton::clicked, this, [this] { go(); });
  row->addWidget(go_);
  auto* close = new QPushButton(QStringLiteral("Close"), holder);
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &QWidget::close);
  row->addWidget(close);
  column.addWidget(holder);
}

void ScaleWindow::go() {
  if (form_.TextVertical.visible()) {
    maker().dispatcher().raise(form_.TextVertical.key, std::string{"Enter"});
    return;
  }
  maker().dispatcher().run(form_.name(), [this] {
    session_.unload(form_);
    session_.load(form_);
  });
}

void ScaleWindow::rest() {
  if (!form_.loaded()) return;
  const bool asking = form_.TextVertical.visible();
  go_->setText(asking ? QStringLiteral("Save the Sheet") : QStringLiteral("Another Sheet"));
  const QString folder = shown(session_.disk.currentFolder());
  place_->setText(asking ? QStringLiteral("A line every 10 pixels, a red one every 100. The sheet "
                                          "is saved as a BMP in %1.")
                               .arg(folder)
                         : QStringLiteral("%1 by %2 pixels.")
                               .arg(form_.Picture1.surface().width())
                               .arg(form_.Picture1.surface().height()));
}

}  // namespace norvik::desktop
