#include "desktop/window/mesh_panes.h"
#include "desktop/words.h"

#include <QHBoxLayout>
#include <QToolBar>
#include <QToolButton>

#include <utility>
#include <vector>

namespace norvik::desktop {

namespace {

using Group = std::vector<front::Control*>;

/// A tool with a place of its own: while it hides, no other one moves under the mouse.
void addTool(Maker& maker, front::Control& control, QToolBar& bar) {
  constexpr int kIcon = 22;
  auto* place = new QWidget(&bar);
  place->setObjectName(QStringLiteral("PlaceOf") + QString::fromStdString(control.name()));
  auto* row = new QHBoxLayout(place);
  row->setContentsMargins(0, 0, 0, 0);
  auto& button = maker.picture(control, *place, kIcon);
  QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  policy.setRetainSizeWhenHidden(true);
  button.setSizePolicy(policy);
  row->addWidget(&button);
  bar.addWidget(place);
  // Some labels are called differently while they mean something else.
  if (auto* label = dynamic_cast<front::Label*>(&control); label != nullptr) {
    maker.watch({label}, [&button, label] { button.setText(shown(label->caption())); });
  }
}

}  // namespace

QToolBar* makeMeshTools(Maker& maker, front::FormOBJ& form, QWidget& parent) {
  auto* bar = new QToolBar(&parent);
  bar->setObjectName(QStringLiteral("MeshTools"));
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setMovable(false);
  const std::vector<Group> groups{
      {&form.LabelView, &form.PictureNewFile},
      {&form.LabelMirror, &form.PictureAddOBJ, &form.PictureMerge, &form.PictureLop,
       &form.PicturePhiLopper},
      {&form.LabelMakeUV, &form.LabelUVMap, &form.LabelSecMap, &form.LabelSaveMap,
       &form.LabelViewCR2TexMap, &form.LabelApplyMap, &form.PictureMagGlass},
      {&form.LabelHotKeys, &form.LabelPlay, &form.LabelBoss}};
  bool first = true;
  for (const Group& group : groups) {
    if (!std::exchange(first, false)) bar->addSeparator();
    for (front::Control* control : group) addTool(maker, *control, *bar);
  }
  return bar;
}

}  // namespace norvik::desktop
