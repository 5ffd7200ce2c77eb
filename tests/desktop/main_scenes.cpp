// The main window, with each part of it that comes and goes.

#include "desktop/form_scenes.h"

#include <QtTest>

namespace norvik::desktop {

std::vector<Scene> mainScenes() {
  return {
      {"Empty", "Opening", "", kStays, [](Hand&) {}},
      {"Figure", "Opening", kFigure, kStays, [](Hand&) {}},
      {"OnePart", "Opening", kFigure, kStays,
       [](Hand& hand) {
         hand.item(hand.opening().ListActors, "head:1");
         hand.click(hand.opening().PictureViewChannels);
         hand.click(hand.opening().PictureTrash);
       }},
      {"EditedPath", "Opening", kFigure, kStays,
       [](Hand& hand) {
         auto* box = hand.window("Opening").findChild<QWidget*>(QStringLiteral("TextMainBump"));
         box->setFocus();
         QTest::keyClicks(box, QStringLiteral("x"));
       }},
      {"Filter", "Opening", kFigure, "Filter.ListActors",
       [](Hand& hand) {
         hand.window("Opening").findChild<QWidget*>(QStringLiteral("ListActors"))->setFocus();
         hand.action("FilterList");
       }},
      {"RenameWhat", "Opening", kFigure, "OptionChannelRename",
       [](Hand& hand) { hand.click(hand.opening().PictureRenameMorph); }},
      {"RenameTo", "Opening", kFigure, "TextMorphRename",
       [](Hand& hand) {
         hand.item(hand.opening().ListActors, "head:1");
         hand.click(hand.opening().PictureRenameMorph);
         hand.run([&] { hand.opening().OptionBodyPartRename.setValue(true); });
         hand.click(hand.opening().PictureRenameMorph);
       }},
      {"RecentFiles", "Opening", kFigure, "ListMRU",
       [](Hand& hand) {
         hand.run([&] {
           hand.opening().menuRecent.clicked.raise();
           hand.opening().ListMRU.show();
         });
       }},
      {"Textures", "Opening", kFigure, "ListAllTexMaps",
       [](Hand& hand) {
         auto* box = hand.window("Opening").findChild<QWidget*>(QStringLiteral("TextMainTex"));
         box->setFocus();
         QTest::keyClick(box, Qt::Key_Down);
         QTest::qWait(20);
       }},
      {"Notepad", "Opening", kFigure, "TextOpeningNotes",
       [](Hand& hand) { hand.menu(hand.opening().MenuNotebook); }},
      {"Brackets", "Opening", kFigure, "PictureBrktsOK",
       [](Hand& hand) { hand.menu(hand.opening().MenuBrack); }},
      {"Reorder", "Opening", kFigure, "ReorderCard",
       [](Hand& hand) { hand.doubleItem(hand.opening().ListActors, "head:1"); }},
      {"SpeedOfWhich", "Opening", kFigure, "SpeedCard",
       [](Hand& hand) { hand.menu(hand.opening().menuDialTrackSpeed); }},
      {"Speed", "Opening", kFigure, "TextTrackingSpeed",
       [](Hand& hand) {
         hand.menu(hand.opening().menuDialTrackSpeed);
         hand.item(hand.opening().ListChannelsReorder, "LongHead");
       }},
      {"HiddenDials", "Opening", kFigure, "HiddenDialsCard",
       [](Hand& hand) {
         hand.item(hand.opening().ListActors, "head:1");
         hand.menu(hand.opening().menuHideDialsChannels);
       }},
      {"HiddenAxes", "Opening", kFigure, "LabelX",
       [](Hand& hand) { hand.menu(hand.opening().menuHideDialsTrans); }},
      {"Limits", "Opening", kFigure, "LimitsCard",
       [](Hand& hand) { hand.menu(hand.opening().MenuLimits); }},
      {"Twist", "Opening", kFigure, "TwistCard",
       [](Hand& hand) { hand.menu(hand.opening().MenuTwist); }},
      {"UniqueName", "Opening", kFigure, "TextERCUnique",
       [](Hand& hand) { hand.menu(hand.opening().menuERCUnique); }},
      {"Mirror", "Opening", kFigure, "PictureMirror",
       [](Hand& hand) { hand.menu(hand.opening().menuMirror); }},
      {"Geometries", "Opening", kFigure, kStays,
       [](Hand& hand) { hand.menu(hand.opening().menuGeomSwitch); }},
      {"EmbeddedGeometry", "Opening",
       "C:\\Poser\\Runtime\\Libraries\\Props\\Tilda\\ballandstaff.pp2", kStays,
       [](Hand& hand) {
         hand.run([&] {
           hand.opening().ListOBJExtract.add("prop_1");
           hand.opening().ListOBJExtract.show();
           hand.opening().FrameExtractObj.show();
           hand.opening().OptionSepObjFiles.show();
           hand.opening().OptionOneObjFile.show();
         });
       }},
      {"Mesh", "Opening", kMesh, kStays, [](Hand&) {}},
      {"ScaledMesh", "Opening", kMesh, kStays,
       [](Hand& hand) { hand.click(hand.opening().PictureScaleObj); }},
      {"CondensedMesh", "Opening", kMesh, kStays,
       [](Hand& hand) { hand.click(hand.opening().PictureMash); }},
      {"Installer", "Opening", kFigure, kStays, [](Hand& hand) { hand.stageInstallation(); }},
  };
}

}  // namespace norvik::desktop
