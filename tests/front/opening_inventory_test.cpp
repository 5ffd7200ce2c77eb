// Every control of the main form: that it is there, of its kind, and how it starts.

#include "front/opening.h"
#include "headless/script_bench.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace norvik::front {
namespace {

using Names = std::vector<std::string>;

const std::map<ControlKind, Names>& inventory() {
  static const std::map<ControlKind, Names> names{
      {ControlKind::label,
       {"LabelFileName",
        "LabelFileSize",
        "LabelBodyParts",
        "LabelMaterials",
        "LabelOpenSourceTitle",
        "LabelChannelFileName",
        "LabelMainOBJPath",
        "LabelPropOBJs",
        "LabelMainTex",
        "LabelMainBump",
        "LabelMainTrans",
        "LabelMainReflect",
        "LabelFileNameForEditor",
        "LabelChannelFileNameForEditor",
        "LabelOBJFileName",
        "LabelSaveObjPath",
        "LabelNLen",
        "LabelTexPathCR2Install",
        "LabelObjPathCR2Install",
        "LabelRtDir",
        "LabelEMC",
        "LabelX",
        "LabelY",
        "LabelZ",
        "FileLabel",
        "NameLabel"}},
      {ControlKind::listBox,
       {"ListActors",
        "ListMaterials",
        "ListMATColors",
        "ListMatHiLite",
        "ListChannels",
        "ListPropObj",
        "ListAllTexMaps",
        "ListHideDialsChannels",
        "ListMRU",
        "ListChannelsReorder",
        "ListChannelsReorderByPart",
        "ListChannelsReorderNewOrder",
        "ListChannelsReorderReordered",
        "ListAltGeomActors",
        "ListAltGeomNames",
        "ListboxListCR2Files",
        "ListOBJExtract",
        "ListOBJBatch",
        "ListEMCs",
        "ListTwistRemove",
        "ListTwistRestore",
        "ChainList"}},
      {ControlKind::textBox,
       {"TextMainOBJ", "TextMainTex", "TextMainBump", "TextMainTrans", "TextMainReflect",
        "TextMorphRename", "TextERCUnique", "TextTrackingSpeed", "TextOBJScale", "TextOpeningNotes",
        "NameBox", "TextForceLimits"}},
      {ControlKind::pictureButton, {"PictureMatColor",      "PictureMatHiLite",
                                    "PictureCopyToDest",    "PictureViewChannels",
                                    "PictureJoints",        "PictureTrash",
                                    "PictureEMC",           "PictureEditor",
                                    "PictureChangeRatio",   "PictureRenameMorph",
                                    "PictureOBJView",       "PictureOBJExtract",
                                    "PictureScaleObj",      "PictureMash",
                                    "PictureMirror",        "PictureMapViewer",
                                    "PictureInstallCR2",    "PictureCR2InstallCancel",
                                    "PicturePrintCR2Files", "PictureChannelReorderDone",
                                    "PictureTile",          "PictureBrktsOK",
                                    "PictureBrktLeft",      "PictureBrktRight",
                                    "PicturePushPin"}},
      {ControlKind::optionButton,
       {"OptionChannelRename", "OptionBodyPartRename", "OptionMashOBJ", "OptionMashMorph",
        "OptionSepObjFiles", "OptionOneObjFile", "OptionAlphabetize"}},
      {ControlKind::checkBox, {"CheckOBJBatch"}},
      {ControlKind::slider, {"SliderOBJScale"}},
      {ControlKind::frame, {"FrameMash", "FrameExtractObj", "FrameDialHiding"}},
      {ControlKind::commandButton, {"CommandDialHideDone"}},
      {ControlKind::shape, {"ShapeChannels", "Shape1", "LineObj"}},
      {ControlKind::image, {"ImageSplash"}},
      {ControlKind::fileList, {"FileChooser"}},
      {ControlKind::timer, {"TimerListAllTexMaps", "TimerPushpin", "TimerTileClose"}}};
  return names;
}

TEST(OpeningInventory, HasEveryControlOfItsKind) {
  const Opening opening;
  for (const auto& [kind, names] : inventory()) {
    for (const std::string& name : names) {
      const Control* control = opening.find(name);
      ASSERT_NE(control, nullptr) << name;
      EXPECT_EQ(control->name(), name);
      EXPECT_EQ(kindName(control->kind()), kindName(kind)) << name;
    }
  }
}

TEST(OpeningInventory, TakesClicksOnTheSourcesPicture) {
  const Opening opening;
  ASSERT_NE(opening.find("LabelOpenSource"), nullptr);
  EXPECT_EQ(kindName(opening.find("LabelOpenSource")->kind()), "picture button");
}

TEST(OpeningInventory, StartsWithTheSplashPictureAlone) {
  const Opening opening;
  for (const Control* control : opening.controls()) {
    const bool stays = control->kind() == ControlKind::menuEntry ||
                       control == &opening.ImageSplash || control == &opening.FileChooser ||
                       control == &opening.FileLabel || control == &opening.NameLabel;
    EXPECT_EQ(control->visible(), stays) << control->name();
    EXPECT_TRUE(control->enabled() || control == &opening.MenuCR2Tools) << control->name();
  }
}

TEST(OpeningInventory, HasItsTips) {
  const Opening opening;
  const std::map<std::string, std::string> tips{
      {"ListAllTexMaps", "Rightclick to hide"},
      {"TextERCUnique", "Enter a new name and hit enter."},
      {"TextTrackingSpeed", "Enter a new number for the tracking speed. Hit Escape to cancel."},
      {"CheckOBJBatch", "Scales all files in the current folder."},
      {"TextOpeningNotes", "Doubleclick to close"},
      {"ListChannelsReorder", "Doubleclick a channel to change the tracking speed."}};
  for (const Control* control : opening.controls()) {
    const auto tip = tips.find(control->name());
    EXPECT_EQ(control->tip(), tip == tips.end() ? "" : tip->second) << control->name();
  }
}

TEST(OpeningInventory, HasItsCaptions) {
  const Opening opening;
  EXPECT_EQ(opening.caption(), "Norvik 5.12");
  EXPECT_EQ(opening.CheckOBJBatch.caption(), "Batch");
  EXPECT_EQ(opening.OptionMashOBJ.caption(), "OBJ");
  EXPECT_EQ(opening.OptionMashMorph.caption(), "Morph");
  EXPECT_EQ(opening.OptionSepObjFiles.caption(), "Separate Files");
  EXPECT_EQ(opening.OptionOneObjFile.caption(), "One File");
  EXPECT_EQ(opening.OptionAlphabetize.caption(), "Alphabetize");
  for (const char* name :
       {"LabelFileName", "LabelFileSize", "LabelChannelFileName", "LabelFileNameForEditor",
        "LabelChannelFileNameForEditor", "LabelOBJFileName"}) {
    EXPECT_EQ(dynamic_cast<const Label*>(opening.find(name))->caption(), "") << name;
  }
}

TEST(OpeningInventory, GroupsTheOptionsOfEachFrame) {
  Opening opening;
  opening.OptionMashOBJ.setValue(true);
  opening.OptionSepObjFiles.setValue(true);
  opening.OptionAlphabetize.setValue(true);
  EXPECT_TRUE(opening.OptionMashOBJ.value());
  EXPECT_TRUE(opening.OptionSepObjFiles.value());
  opening.OptionMashMorph.setValue(true);
  EXPECT_FALSE(opening.OptionMashOBJ.value());
  opening.OptionOneObjFile.setValue(true);
  EXPECT_FALSE(opening.OptionSepObjFiles.value());
  EXPECT_TRUE(opening.OptionMashMorph.value());
  EXPECT_TRUE(opening.OptionAlphabetize.value());
}

TEST(OpeningInventory, HasTenDialogsThatRememberTheirOwnNames) {
  Opening opening;
  CommonDialog* const dialogs[] = {&opening.CommonDialog1,         &opening.CommonDialog2,
                                   &opening.CommonDialog3,         &opening.CommonDialog4,
                                   &opening.CommonDialog5,         &opening.CommonDialog6,
                                   &opening.CommonDialog7,         &opening.CommonDialog8,
                                   &opening.CommonDialogFindPoser, &opening.CommonDialogZip};
  for (CommonDialog* dialog : dialogs) EXPECT_EQ(dialog->fileName(), "");
  opening.CommonDialog1.setFileName("C:\\a.cr2");
  for (CommonDialog* dialog : dialogs) {
    EXPECT_EQ(dialog->fileName(), dialog == dialogs[0] ? "C:\\a.cr2" : "");
  }
}

struct Entry {
  int depth;
  std::string name;
  std::string caption;

  bool operator==(const Entry&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Entry& entry) {
  return out << entry.depth << " " << entry.name << " \"" << entry.caption << "\"";
}

TEST(OpeningInventory, HasTheMenuTreeInItsOrder) {
  const std::vector<Entry> wanted{{0, "menuFile", "File"},
                                  {1, "MenuFileOpen", "Open"},
                                  {1, "menuRecent", "Recent Files"},
                                  {1, "MenuFileSave", "Save"},
                                  {1, "MenuFileSaveAs", "Save As...."},
                                  {1, "menuEditor", "Manual Editor"},
                                  {1, "menuPLoc", "Poser Location"},
                                  {1, "menuScreenRes", "Full Screen"},
                                  {1, "MenuAttrib", "Change Attributes"},
                                  {1, "MenuFileExit", "Exit"},
                                  {0, "MenuCR2Tools", "More Tools"},
                                  {1, "MenuPropObjRel", "Prop Obj File Relocator"},
                                  {1, "MenuPropTexRel", "Prop Texture File Relocator"},
                                  {1, "MenuMakeMaster", "Make Master CR2"},
                                  {2, "MenuMasterP3", "Poser 3"},
                                  {3, "MenuP3Male", "Male"},
                                  {3, "MenuP3Female", "Female"},
                                  {2, "MenuMasterP4", "Poser 4"},
                                  {3, "MenuP4Male", "Male"},
                                  {3, "MenuP4Female", "Female"},
                                  {2, "MenuVic", "Victoria 1"},
                                  {2, "MenuMasterAny", "Any Figure"},
                                  {3, "MenuAnyMasterStandard", "Standard Master"},
                                  {3, "MenuAnyMasterNoFBM", "Remove all Morphs including FBM's"},
                                  {1, "MenuBend", "Bend Parameter"},
                                  {2, "MenuBendOff", "Turn Off Bending"},
                                  {2, "MenuBendOn", "Turn On Bending"},
                                  {1, "MenuBrack", "Bracket Checker"},
                                  {1, "MenuLimits", "Force/Unforce Limits"},
                                  {1, "MenuDials", "Hide/Unhide Dials"},
                                  {2, "menuHideDialsTrans", "Translation"},
                                  {2, "menuHideDialsChannels", "Channels"},
                                  {1, "MenuTwist", "Remove/Replace Twist Parameters"},
                                  {1, "MenuDialRen", "Dial Renamer"},
                                  {1, "MenuPoseFile", "Pose File Creator"},
                                  {1, "menuMatFile", "MAT/MAP File Creator"},
                                  {1, "MenuMor", "MOR File Creator"},
                                  {1, "menuCombinePZ2", "Combine PZ2 MOR Files"},
                                  {1, "MenuMakeMTL", "MTL File Creator"},
                                  {1, "menuNewCR2ExtOBJ", "Make Library File with External OBJ"},
                                  {1, "menuMirror", "Copy Morph With Mirroring Enabled"},
                                  {1, "MenuPZ3Cr2Conv", "PZ3 to CR2 Convertor"},
                                  {1, "MenuPZ3AVI", "Create AVI Background File"},
                                  {1, "MenuScale", "Scaling Background Picture"},
                                  {1, "MenuCoordMat", "Coordinate Materials"},
                                  {1, "MenuP3P4Cam", "P3 to P4 Camera Convertor"},
                                  {1, "MenuTransferParts", "Transfer Body Parts"},
                                  {1, "MenuDumpIK", "Remove IK Chains"},
                                  {1, "menuNullFig", "Create Null Figure"},
                                  {1, "menuERCUnique", "ERC Unique Name"},
                                  {1, "menuFilesRemove", "Remove/Backup Files"},
                                  {1, "menuDialTrackSpeed", "Dial Tracking Speed"},
                                  {1, "menuGeomSwitch", "Geometry Switching"},
                                  {1, "menuRenumberFiles", "Renumber File Sequence"},
                                  {0, "MenuPhiTools", "Phi Tools"},
                                  {1, "MenuPhi", "Create Phi File"},
                                  {1, "MenuViewPhi", "View Phi File"},
                                  {0, "MenuInstallCR2", "Install Files From CR2"},
                                  {0, "MenuLauncher", "Launcher"},
                                  {0, "MenuPoser", "Poser"},
                                  {0, "MenuPStart", "PStart"},
                                  {0, "MenuNotes", "Notes"},
                                  {1, "MenuNotebook", "Open Notebook"},
                                  {1, "MenuNoteFile", "Open Note File"},
                                  {0, "MenuSpace", " "},
                                  {0, "MenuHelpTop", "Help"},
                                  {1, "MenuHelp", "Help"},
                                  {1, "menuWebTutorials", "Norvik Tutorials on the Net"},
                                  {1, "MenuPlay", "Play"},
                                  {1, "menuCheckVer", "Check for Current Version and News"},
                                  {1, "MenuAbout", "About"}};
  const Opening opening;
  std::vector<Entry> found;
  for (const Control* control : opening.controls()) {
    const auto* entry = dynamic_cast<const MenuEntry*>(control);
    if (entry == nullptr) continue;
    int depth = 0;
    for (const MenuEntry* above = entry->above(); above != nullptr; above = above->above()) ++depth;
    found.push_back({depth, entry->name(), entry->caption()});
  }
  EXPECT_EQ(found, wanted);
}

TEST(OpeningInventory, HasFiveEntriesWithoutAnAction) {
  headless::ScriptBench bench;
  for (const char* name :
       {"MenuPropObjRel", "MenuPropTexRel", "MenuLimits", "MenuTwist", "MenuTransferParts"}) {
    const Control* entry = bench.opening().find(name);
    ASSERT_NE(entry, nullptr) << name;
    EXPECT_FALSE(entry->clicked.hasHandlers()) << name;
  }
}

TEST(OpeningInventory, IsAllNamed) {
  std::size_t known = 1;  // LabelOpenSource
  for (const auto& [kind, names] : inventory()) known += names.size();
  const Opening opening;
  std::size_t menus = 0;
  for (const Control* control : opening.controls()) {
    menus += control->kind() == ControlKind::menuEntry ? 1U : 0U;
  }
  EXPECT_EQ(opening.controls().size(), known + menus);
}

}  // namespace
}  // namespace norvik::front
