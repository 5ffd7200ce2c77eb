#include "desktop/window/headings.h"
#include "desktop/window/panes.h"
#include "desktop/window/pending_path.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

PendingPath* watchTyping(Maker& maker, front::TextBox& box, front::Label& label, QLineEdit& edit,
                         QGridLayout& grid, int line) {
  auto* hint = new QLabel(QStringLiteral("Enter takes it"), edit.parentWidget());
  hint->setObjectName(QStringLiteral("HintOf") + QString::fromStdString(box.name()));
  hint->setForegroundRole(QPalette::PlaceholderText);
  grid.addWidget(hint, line, 2);
  return new PendingPath(maker, box, label, edit, *hint);
}

}  // namespace

QWidget* makePathBlock(Maker& maker, front::Opening& opening, QWidget& parent,
                       std::vector<PendingPath*>& paths) {
  auto* block = new QWidget(&parent);
  block->setObjectName(QStringLiteral("PathBlock"));
  auto* outside = new QVBoxLayout(block);
  outside->setContentsMargins(kPaneMargin, 0, kPaneMargin, kPaneMargin);
  auto* frame = new QFrame(block);
  frame->setFrameStyle(QFrame::StyledPanel);
  maker.shape(opening.Shape1, *frame);
  outside->addWidget(frame);

  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(kPaneMargin, kPaneMargin, kPaneMargin, kPaneMargin);
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(4);
  grid->setColumnStretch(1, 1);
  struct Row {
    front::Label& label;
    front::TextBox* box;
  };
  const Row rows[] = {{opening.LabelMainOBJPath, &opening.TextMainOBJ},
                      {opening.LabelPropOBJs, nullptr},
                      {opening.LabelMainTex, &opening.TextMainTex},
                      {opening.LabelMainBump, &opening.TextMainBump},
                      {opening.LabelMainTrans, &opening.TextMainTrans},
                      {opening.LabelMainReflect, &opening.TextMainReflect}};
  int line = 0;
  for (const Row& row : rows) {
    auto& label = maker.label(row.label, *frame);
    QWidget* value = nullptr;
    if (row.box != nullptr) {
      auto& edit = maker.line(*row.box, *frame);
      paths.push_back(watchTyping(maker, *row.box, row.label, edit, *grid, line));
      value = &edit;
    } else {
      // Two rows; one where the screen has no room for them.
      auto& props = maker.list(opening.ListPropObj, *frame);
      const int height = props.fontMetrics().height() + 5;
      constexpr int kFrame = 6;
      props.setMinimumHeight(height + kFrame);
      props.setMaximumHeight(2 * height + kFrame);
      value = &props;
    }
    value->setAccessibleName(QString::fromStdString(row.label.caption()));
    grid->addWidget(&label, line, 0, Qt::AlignVCenter | Qt::AlignLeft);
    grid->addWidget(value, line, 1);
    ++line;
  }
  auto* rule = new QFrame(block);
  rule->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Plain));
  rule->setForegroundRole(QPalette::Mid);
  rule->setFixedHeight(1);
  maker.shape(opening.LineObj, *rule);
  outside->addWidget(rule);
  block->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

  showUnlessInstalling(maker, opening, *block,
                       {&opening.Shape1, &opening.LabelMainOBJPath, &opening.TextMainOBJ,
                        &opening.LabelMainTex, &opening.TextMainTex, &opening.TextMainBump,
                        &opening.TextMainTrans, &opening.TextMainReflect});
  return block;
}

}  // namespace norvik::desktop
