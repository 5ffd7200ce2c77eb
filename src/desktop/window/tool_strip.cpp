#include "desktop/window/tool_strip.h"

#include <QAction>
#include <QMainWindow>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <vector>

namespace norvik::desktop {

QToolBar* makeToolStrip(Maker& maker, front::Opening& opening, QMainWindow& window) {
  constexpr int kIcon = 28;
  auto* bar = new QToolBar(QStringLiteral("Tools"), &window);
  bar->setObjectName(QStringLiteral("ToolStrip"));
  bar->setMovable(false);
  bar->setFloatable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);

  using Group = std::vector<front::PictureButton*>;
  const std::vector<Group> groups{
      {&opening.PictureViewChannels, &opening.PictureCopyToDest, &opening.PictureRenameMorph,
       &opening.PictureMirror, &opening.PictureTrash},
      {&opening.PictureChangeRatio, &opening.PictureEMC, &opening.PictureJoints},
      {&opening.PictureScaleObj, &opening.PictureMash, &opening.PictureOBJExtract,
       &opening.PictureOBJView, &opening.PictureMapViewer},
      {&opening.PictureEditor}};
  QAction* between = nullptr;
  Group before;
  for (const Group& group : groups) {
    if (between != nullptr) {
      // A line stands between two groups only while both are there.
      const auto anySeen = [](const Group& pictures) {
        return std::any_of(pictures.begin(), pictures.end(),
                           [](const auto* picture) { return picture->visible(); });
      };
      const auto place = [between, anySeen, before, group] {
        between->setVisible(anySeen(before) && anySeen(group));
      };
      for (front::PictureButton* picture : before) maker.watch({picture}, place);
      for (front::PictureButton* picture : group) maker.watch({picture}, place);
    }
    for (front::PictureButton* picture : group) {
      auto& button = maker.picture(*picture, *bar, kIcon);
      QAction* action = bar->addWidget(&button);
      maker.watch({picture}, [action, picture] { action->setVisible(picture->visible()); });
      before.push_back(picture);
    }
    between = bar->addSeparator();
  }
  bar->removeAction(between);
  Group all = before;
  const auto showBar = [bar, all] {
    bar->setVisible(std::any_of(all.begin(), all.end(),
                                [](const auto* picture) { return picture->visible(); }));
  };
  for (front::PictureButton* picture : all) maker.watch({picture}, showBar);
  return bar;
}

}  // namespace norvik::desktop
