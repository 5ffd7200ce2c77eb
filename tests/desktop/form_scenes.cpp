// The forms behind the main one.

#include "desktop/form_scenes.h"

#include "builders/phi/form_phi.h"
#include "dials/renamer_form.h"
#include "editor/form_editor.h"
#include "erc/dialog_erc.h"
#include "erc/form_ecm.h"
#include "erc/form_list_emcs.h"
#include "install/form_cr2_install.h"
#include "pose/form_mor.h"
#include "pose/form_pz2.h"
#include "pose/form_pz2_combine.h"
#include "tools/form_scale.h"

namespace norvik::desktop {

namespace {

constexpr const char* kSecondFigure = "/Poser/Runtime/Libraries/Characters/Tilda/tilda2.cr2";

void readMesh(Hand& hand) {
  hand.click(hand.opening().PictureOBJView);
  hand.run([&] { hand.workshop().OptionColorGroups.setValue(true); });
  hand.click(hand.workshop().LabelView);
}

void openLinks(Hand& hand) {
  auto& kinds = hand.form<erc::DialogERC>("DialogERC");
  hand.click(hand.opening().PictureEMC);
  hand.run([&] { kinds.OptionPBM.setValue(true); });
  // Done would wait until the form is left.
  hand.load("FormECM");
}

void openWelder(Hand& hand) {
  const std::string pose =
      "{\r\nversion\r\n\t{\r\n\tnumber 4\r\n\t}\r\nactor head:1\r\n\t{\r\n\tchannels\r\n\t\t{\r\n"
      "\t\ttargetGeom LongHead\r\n\t\t\t{\r\n\t\t\tkeys\r\n\t\t\t\t{\r\n\t\t\t\tk  0  0.5\r\n"
      "\t\t\t\t}\r\n\t\t\t}\r\n\t\t}\r\n\t}\r\n}\r\n";
  hand.write("/first.pz2", pose);
  hand.write("/second.pz2", pose);
  hand.open("C:\\first.pz2");
  hand.menu(hand.opening().menuCombinePZ2);
  hand.path("/second.pz2");
  hand.click(hand.form<pose::FormPZ2Combine>("FormPZ2Combine").LabelOpenSecond);
}

}  // namespace

std::vector<Scene> formScenes() {
  return {
      {"Workshop", "FormOBJ", kMesh, kStays,
       [](Hand& hand) { hand.click(hand.opening().PictureOBJView); }},
      {"WorkshopRead", "FormOBJ", kMesh, kStays,
       [](Hand& hand) {
         readMesh(hand);
         hand.click(hand.workshop().LabelHotKeys);
       }},
      {"WorkshopNames", "FormOBJ", kMesh, kStays,
       [](Hand& hand) {
         readMesh(hand);
         hand.click(hand.workshop().CommandListGroups);
         hand.click(hand.workshop().CommandListMats);
       }},
      {"WorkshopTemplate", "FormOBJ", kMesh, kStays,
       [](Hand& hand) {
         readMesh(hand);
         hand.click(hand.workshop().LabelUVMap);
         hand.click(hand.workshop().LabelSaveMap);
       }},
      {"WorkshopSecondMesh", "FormOBJ", kMesh, kStays,
       [](Hand& hand) {
         readMesh(hand);
         hand.path("/Poser/Runtime/Geometries/Tilda/tildahair.obj");
         hand.click(hand.workshop().PictureAddOBJ);
       }},
      {"WorkshopCut", "FormOBJ", kMesh, kStays,
       [](Hand& hand) {
         readMesh(hand);
         hand.click(hand.workshop().PictureLop);
       }},
      {"WorkshopPlay", "FormOBJ", "", kStays,
       [](Hand& hand) {
         hand.menu(hand.opening().MenuPlay);
         hand.click(hand.workshop().LabelPlay);
       }},
      {"WorkshopCovered", "FormOBJ", kMesh, "ImageBoss",
       [](Hand& hand) {
         readMesh(hand);
         hand.click(hand.workshop().LabelBoss);
       }},
      {"LinkKinds", "DialogERC", kFigure, kCloses,
       [](Hand& hand) { hand.click(hand.opening().PictureEMC); }},
      {"Links", "FormECM", kFigure, kCloses, openLinks},
      {"LinkWalk", "FormECM", kFigure, kCloses,
       [](Hand& hand) {
         openLinks(hand);
         auto& form = hand.form<erc::FormECM>("FormECM");
         hand.item(form.ListControlledMorph, "RoundHead");
         hand.item(form.ListControlledMorph, "LongHead");
       }},
      {"Ratios", "FormListEMCs", kFigure, kCloses,
       [](Hand& hand) { hand.click(hand.opening().PictureChangeRatio); }},
      {"Phi", "FormPhi", kFigure, "TextPhiEdit",
       [](Hand& hand) {
         hand.answer(front::Answer::yes);
         hand.path("/Poser/Runtime/Libraries/Characters/Tilda/tilda.cr2");
         hand.menu(hand.opening().MenuPhi);
         auto& form = hand.form<builders::FormPhi>("FormPhi");
         hand.doubleItem(form.ListPhi, "head");
       }},
      {"Branch", "FormTree", kFigure, kCloses,
       [](Hand& hand) {
         readMesh(hand);
         hand.load("FormTree");
       }},
      {"Materials", "FormMatCoord", kFigure, kCloses,
       [](Hand& hand) {
         hand.answer(front::Answer::no);
         hand.path("/coordinated.cr2");
         std::string mixed = hand.read("/Poser/Runtime/Libraries/Characters/Tilda/tilda.cr2");
         mixed.replace(mixed.find("\tmaterial lips"), 14, "\tmaterial lipsMaterial");
         hand.write("/mixed.cr2", mixed);
         hand.open("C:\\mixed.cr2");
         hand.menu(hand.opening().MenuCoordMat);
       }},
      {"Pose", "FormPZ2", kFigure, kCloses,
       [](Hand& hand) { hand.menu(hand.opening().MenuPoseFile); }},
      {"Mat", "FormPZ2", kFigure, kCloses,
       [](Hand& hand) {
         hand.menu(hand.opening().menuMatFile);
         auto& form = hand.form<pose::FormPZ2>("FormPZ2");
         hand.item(form.ListMaterialsMAT, "s");
       }},
      {"Mor", "FormMOR", kFigure, kCloses, [](Hand& hand) { hand.menu(hand.opening().MenuMor); }},
      {"Weld", "FormPZ2Combine", kFigure, kCloses, openWelder},
      {"Editor", "FormEditor", kFigure, kStays,
       [](Hand& hand) { hand.click(hand.opening().PictureEditor); }},
      {"EditorFind", "FormEditor", kFigure, "ComboFind",
       [](Hand& hand) {
         hand.click(hand.opening().PictureEditor);
         auto& form = hand.form<editor::FormEditor>("FormEditor");
         hand.answer(front::Answer::no);
         hand.path(kSecondFigure);
         hand.click(form.PictureSecFile);
         hand.click(form.PictureReplace);
       }},
      {"EditorRecent", "FormEditor", kFigure, "ListMRU",
       [](Hand& hand) {
         hand.click(hand.opening().PictureEditor);
         auto& form = hand.form<editor::FormEditor>("FormEditor");
         hand.run([&] {
           form.ListMRU.add(kFigure);
           form.ListMRU.show();
         });
       }},
      {"Notes", "FormNotes", kFigure, kCloses, [](Hand& hand) { hand.load("FormNotes"); }},
      {"Hole", "FormHole", kFigure, kCloses, [](Hand& hand) { hand.load("FormHole"); }},
      {"Renamer", "Renamer", kFigure, kCloses,
       [](Hand& hand) {
         hand.menu(hand.opening().MenuDialRen);
         auto& form = hand.form<dials::Renamer>("Renamer");
         hand.run([&] {
           form.Dir1.setPath("C:\\Poser\\Runtime\\Libraries\\Characters\\Tilda");
           form.Dir1.changed.raise();
         });
         hand.item(form.File1, "tilda2.cr2");
         hand.click(form.LabelFriendly);
       }},
      {"MapViewer", "FormViewer", kFigure, kCloses,
       [](Hand& hand) {
         hand.run([&] {
           hand.opening().CommonDialog6.setFileName(
               "C:\\Poser\\Runtime\\textures\\Tilda\\tilda.bmp");
         });
         hand.load("FormViewer");
       }},
      {"GraphPaper", "FormScale", kFigure, kCloses,
       [](Hand& hand) { hand.menu(hand.opening().MenuScale); }},
      {"GraphPaperDrawn", "FormScale", kFigure, kCloses,
       [](Hand& hand) {
         hand.run([&] { hand.session().disk.changeFolder("C:\\"); });
         hand.menu(hand.opening().MenuScale);
         auto& form = hand.form<tools::FormScale>("FormScale");
         hand.run([&] { form.TextHorizontal.setText("900"); });
         hand.enter(form.TextVertical, "700");
       }},
      {"Magnifier", "Magnifier", kMesh, kCloses, [](Hand& hand) { hand.load("Magnifier"); }},
      {"Launcher", "FormLaunch", kFigure, kCloses,
       [](Hand& hand) { hand.menu(hand.opening().MenuLauncher); }},
      {"InstallPlan", "FormCR2Install", kFigure, "TextNewDir",
       [](Hand& hand) {
         hand.stageInstallation();
         hand.run([&] { hand.session().disk.changeFolder("C:\\Poser\\Runtime\\Libraries"); });
         hand.load("FormCR2Install");
         auto& form = hand.form<install::FormCR2Install>("FormCR2Install");
         hand.click(form.LabelNewDir);
       }},
      {"RemoveFiles", "FormRemoveFiles", kFigure, kCloses,
       [](Hand& hand) { hand.menu(hand.opening().menuFilesRemove); }},
      {"Renumber", "FormRenumber", kFigure, kCloses,
       [](Hand& hand) {
         for (const char* file : {"/film/1.bmp", "/film/2.bmp", "/film/11.bmp"}) {
           hand.write(file, "picture");
         }
         hand.run([&] { hand.session().disk.changeFolder("C:\\film"); });
         hand.menu(hand.opening().menuRenumberFiles);
       }},
  };
}

std::vector<Scene> everyScene() {
  std::vector<Scene> all = mainScenes();
  for (const Scene& scene : formScenes()) all.push_back(scene);
  return all;
}

}  // namespace norvik::desktop
