#include "desktop/window/mesh_panes.h"
#include "desktop/words.h"

#include <QAction>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <vector>

namespace norvik::desktop {

namespace {

using Group = std::vector<front::Control*>;

bool anySeen(const Group& controls) {
  return std::any_of(controls.begin(), controls.end(),
                     [](const auto* control) { return control->visible(); });
}

void addTool(Maker& maker, front::Control& control, QToolBar& bar) {
  constexpr int kIcon = 26;
  auto& button = maker.picture(control, bar, kIcon);
  QAction* action = bar.addWidget(&button);
  maker.watch({&control}, [action, &control] { action->setVisible(control.visible()); });
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
  Group before;
  for (const Group& group : groups) {
    if (!before.empty()) {
      // A line stands between two groups only while both are there.
      QAction* line = bar->addSeparator();
      const auto place = [line, before, group] {
        line->setVisible(anySeen(before) && anySeen(group));
      };
      for (front::Control* control : before) maker.watch({control}, place);
      for (front::Control* control : group) maker.watch({control}, place);
    }
    for (front::Control* control : group) addTool(maker, *control, *bar);
    before.insert(before.end(), group.begin(), group.end());
  }
  return bar;
}

}  // namespace norvik::desktop
