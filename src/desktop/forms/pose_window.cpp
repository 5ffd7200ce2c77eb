#include "desktop/forms/pose_window.h"

#include "desktop/bind/label_button.h"
#include "desktop/forms/pose_parts.h"
#include "desktop/theme.h"
#include "desktop/window/headings.h"
#include "desktop/words.h"
#include "pose/mat_colours.h"

#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 560;
constexpr int kChipWidth = 64;
constexpr int kChipHeight = 22;

/// A frame that takes clicks on what lies in it, too.
class ClickedFrameBinding : public WidgetBinding {
 public:
  ClickedFrameBinding(Dispatcher& dispatcher, front::Frame& frame, QGroupBox& group)
      : WidgetBinding(dispatcher, frame, group), frame_(frame), group_(group) {}

 protected:
  void refresh() override {
    group_.setTitle(shown(frame_.caption()));
    WidgetBinding::refresh();
  }

 private:
  front::Frame& frame_;
  QGroupBox& group_;
};

/// A field that is painted in a shape's colour, with its name beside it.
void addChip(Maker& maker, front::Label& name, front::Shape& shape, QWidget& parent,
             QHBoxLayout& line) {
  auto* chip = new QFrame(&parent);
  chip->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
  chip->setFixedSize(kChipWidth, kChipHeight);
  chip->setAutoFillBackground(true);
  chip->setObjectName(QString::fromStdString(shape.name()));
  line.addWidget(&maker.label(name, parent));
  line.addWidget(chip);
  maker.watch({&shape}, [chip, &shape] {
    QPalette palette = chip->palette();
    palette.setColor(QPalette::Window, toColor(shape.back()));
    chip->setPalette(palette);
    chip->setVisible(shape.visible());
  });
}

}  // namespace

PoseWindow::PoseWindow(const WindowParts& parts, pose::FormPZ2& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent), form_(form) {
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  column->addWidget(makeHead());
  pose_ = makePose();
  mat_ = makeMat();
  column->addWidget(pose_, 1);
  column->addWidget(mat_, 1);
  column->addWidget(makeDoneRow(maker(), form.LabelDonePZ2, form.LabelCancelPZ2, *this));
  resize(kWidth, kHeight);
  sync();
}

/// The control tells the tools apart, and the pages follow it.
void PoseWindow::sync() {
  FormWindow::sync();
  if (pose_ == nullptr || mat_ == nullptr) return;
  pose_->setVisible(!form_.matMode());
  mat_->setVisible(form_.matMode());
}

/// The keys go to the list that is worked on.
void PoseWindow::showEvent(QShowEvent* event) {
  FormWindow::showEvent(event);
  sync();
  const front::Control& list =
      form_.matMode() ? static_cast<front::Control&>(form_.ListMaterialsMAT) : form_.ListActorsPZ2;
  auto* view = findChild<QWidget*>(QString::fromStdString(list.name()));
  if (view != nullptr) view->setFocus();
}

QWidget* PoseWindow::makeHead() {
  auto* head = new QWidget(this);
  auto* line = new QHBoxLayout(head);
  line->setContentsMargins(0, 0, 0, 0);
  QLabel& file = maker().pathLabel(form_.LabelFNamePZ2, *head);
  makeFileHeading(file, QStringLiteral("Source file"));
  line->addWidget(&file, 1);
  line->addWidget(&maker().label(form_.LabelMAT, *head));
  return head;
}

QWidget* PoseWindow::makePose() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(0, 0, 0, 0);
  QLabel& directions = maker().label(form_.LabelDirections, *page);
  directions.setWordWrap(true);
  column->addWidget(&directions);
  auto* lists = new QHBoxLayout;
  ListView& parts = maker().list(form_.ListActorsPZ2, *page);
  lists->addLayout(makeColumn(QStringLiteral("Body parts"), &parts));
  const QString chosen = QStringLiteral("In the pose");
  lists->addLayout(makeColumn(chosen, makeMirror(maker(), form_.ListActorsWanted, chosen, *page)));
  column->addLayout(lists, 1);
  return page;
}

QWidget* PoseWindow::makeMat() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(0, 0, 0, 0);
  auto* lists = new QHBoxLayout;
  ListView& materials = maker().list(form_.ListMaterialsMAT, *page);
  materials.setItemDelegate(new NotedRows(
      {.chip =
           [this](int row) {
             const auto colour = pose::entryColour(form_.ListMATColors.item(row));
             return colour ? toColor(*colour) : QColor();
           },
       .note =
           [this](int item) {
             return form_.changedColours.contains(item) ? QStringLiteral("changed") : QString();
           },
       .marked = [](int) { return true; },
       .heading = {}},
      &materials));
  maker().watch({&form_.ListMATColors}, [&materials] { materials.viewport()->update(); });
  materials.setToolTip(QStringLiteral("Double click to choose, right click to change the color"));
  lists->addLayout(makeColumn(QStringLiteral("Materials"), &materials));
  const QString chosen = QStringLiteral("In the MAT file");
  lists->addLayout(
      makeColumn(chosen, makeMirror(maker(), form_.ListMaterialsMATWanted, chosen, *page)));
  column->addLayout(lists, 1);
  auto* options = new QHBoxLayout;
  options->addWidget(makeBoxes(*page));
  options->addWidget(makeColours(*page), 1);
  column->addLayout(options);
  return page;
}

QWidget* PoseWindow::makeBoxes(QWidget& parent) {
  auto* boxes = new QGroupBox(QStringLiteral("Write"), &parent);
  auto* column = new QVBoxLayout(boxes);
  for (front::CheckBox* box :
       {&form_.CheckAllMat, &form_.CheckIncludeMaps, &form_.CheckNoTrans, &form_.CheckSetToWhite}) {
    column->addWidget(maker().make(*box, *boxes));
  }
  column->addStretch();
  return boxes;
}

QWidget* PoseWindow::makeColours(QWidget& parent) {
  auto* frame = new QGroupBox(&parent);
  maker().bindings().add(
      std::make_unique<ClickedFrameBinding>(maker().dispatcher(), form_.Frame1, *frame));
  auto* column = new QVBoxLayout(frame);
  QPushButton& change = makeLabelButton(maker(), form_.LabelChangeColor, *frame);
  column->addWidget(&change, 0, Qt::AlignLeft);
  auto* chips = new QHBoxLayout;
  addChip(maker(), form_.LabelPresent, form_.ShapePresentColor, *frame, *chips);
  chips->addSpacing(kPaneMargin);
  addChip(maker(), form_.LabelNew, form_.ShapeNewColor, *frame, *chips);
  chips->addStretch();
  column->addLayout(chips);
  column->addStretch();
  return frame;
}

}  // namespace norvik::desktop
