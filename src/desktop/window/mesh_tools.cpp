#include "desktop/window/flow_layout.h"
#include "desktop/window/mesh_panes.h"
#include "desktop/words.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QToolButton>

#include <vector>

namespace norvik::desktop {

namespace {

using Group = std::vector<front::Control*>;

/// A tool keeps its room: while it hides, no other one moves under the mouse.
void addTool(Maker& maker, front::Control& control, QWidget& group, QLayout& row) {
  constexpr int kIcon = 22;
  auto& button = maker.picture(control, group, kIcon);
  QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  policy.setRetainSizeWhenHidden(true);
  button.setSizePolicy(policy);
  row.addWidget(&button);
  // Some labels are called differently while they mean something else.
  if (auto* label = dynamic_cast<front::Label*>(&control); label != nullptr) {
    maker.watch({label}, [&button, label] { button.setText(shown(label->caption())); });
  }
}

}  // namespace

QWidget* makeMeshTools(Maker& maker, front::FormOBJ& form, QWidget& parent) {
  auto* bar = new QWidget(&parent);
  bar->setObjectName(QStringLiteral("MeshTools"));
  // All tools are seen on a narrow screen too.
  auto* rows = new FlowLayout(bar);
  rows->setContentsMargins(4, 2, 4, 2);
  rows->setSpacing(2);
  const std::vector<Group> groups{
      {&form.LabelView, &form.PictureNewFile},
      {&form.LabelMirror, &form.PictureAddOBJ, &form.PictureMerge, &form.PictureLop,
       &form.PicturePhiLopper},
      {&form.LabelMakeUV, &form.LabelUVMap, &form.LabelSecMap, &form.LabelSaveMap,
       &form.LabelViewCR2TexMap, &form.LabelApplyMap, &form.PictureMagGlass},
      {&form.LabelHotKeys, &form.LabelPlay, &form.LabelBoss}};
  for (const Group& controls : groups) {
    auto* group = new QWidget(bar);
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    for (front::Control* control : controls) addTool(maker, *control, *group, *row);
    if (&controls != &groups.back()) {
      auto* line = new QFrame(group);
      line->setFrameStyle(static_cast<int>(QFrame::VLine) | static_cast<int>(QFrame::Plain));
      line->setForegroundRole(QPalette::Mid);
      row->addWidget(line);
    }
    rows->addWidget(group);
  }
  return bar;
}

}  // namespace norvik::desktop
