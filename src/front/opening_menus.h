#pragma once
// The menu tree of the main form, in its order.

#include "front/menu_entry.h"

namespace norvik::front {

struct OpeningMenus {
  explicit OpeningMenus(Form& form) : form_(form) {}

 private:
  Form& form_;

 public:
  MenuEntry menuFile{form_, "menuFile", "File"};
  MenuEntry MenuFileOpen{menuFile, "MenuFileOpen", "Open"};
  MenuEntry menuRecent{menuFile, "menuRecent", "Recent Files"};
  MenuEntry MenuFileSave{menuFile, "MenuFileSave", "Save"};
  MenuEntry MenuFileSaveAs{menuFile, "MenuFileSaveAs", "Save As...."};
  MenuEntry menuEditor{menuFile, "menuEditor", "Manual Editor"};
  MenuEntry menuPLoc{menuFile, "menuPLoc", "Poser Location"};
  MenuEntry menuScreenRes{menuFile, "menuScreenRes", "Full Screen"};
  MenuEntry MenuAttrib{menuFile, "MenuAttrib", "Change Attributes"};
  MenuEntry MenuFileExit{menuFile, "MenuFileExit", "Exit"};

  MenuEntry MenuCR2Tools{form_, "MenuCR2Tools", "More Tools"};
  MenuEntry MenuPropObjRel{MenuCR2Tools, "MenuPropObjRel", "Prop Obj File Relocator"};
  MenuEntry MenuPropTexRel{MenuCR2Tools, "MenuPropTexRel", "Prop Texture File Relocator"};
  MenuEntry MenuMakeMaster{MenuCR2Tools, "MenuMakeMaster", "Make Master CR2"};
  MenuEntry MenuMasterP3{MenuMakeMaster, "MenuMasterP3", "Poser 3"};
  MenuEntry MenuP3Male{MenuMasterP3, "MenuP3Male", "Male"};
  MenuEntry MenuP3Female{MenuMasterP3, "MenuP3Female", "Female"};
  MenuEntry MenuMasterP4{MenuMakeMaster, "MenuMasterP4", "Poser 4"};
  MenuEntry MenuP4Male{MenuMasterP4, "MenuP4Male", "Male"};
  MenuEntry MenuP4Female{MenuMasterP4, "MenuP4Female", "Female"};
  MenuEntry MenuVic{MenuMakeMaster, "MenuVic", "Victoria 1"};
  MenuEntry MenuMasterAny{MenuMakeMaster, "MenuMasterAny", "Any Figure"};
  MenuEntry MenuAnyMasterStandard{MenuMasterAny, "MenuAnyMasterStandard", "Standard Master"};
  MenuEntry MenuAnyMasterNoFBM{MenuMasterAny, "MenuAnyMasterNoFBM",
                               "Remove all Morphs including FBM's"};
  MenuEntry MenuBend{MenuCR2Tools, "MenuBend", "Bend Parameter"};
  MenuEntry MenuBendOff{MenuBend, "MenuBendOff", "Turn Off Bending"};
  MenuEntry MenuBendOn{MenuBend, "MenuBendOn", "Turn On Bending"};
  MenuEntry MenuBrack{MenuCR2Tools, "MenuBrack", "Bracket Checker"};
  MenuEntry MenuLimits{MenuCR2Tools, "MenuLimits", "Force/Unforce Limits"};
  MenuEntry MenuDials{MenuCR2Tools, "MenuDials", "Hide/Unhide Dials"};
  MenuEntry menuHideDialsTrans{MenuDials, "menuHideDialsTrans", "Translation"};
  MenuEntry menuHideDialsChannels{MenuDials, "menuHideDialsChannels", "Channels"};
  MenuEntry MenuTwist{MenuCR2Tools, "MenuTwist", "Remove/Replace Twist Parameters"};
  MenuEntry MenuDialRen{MenuCR2Tools, "MenuDialRen", "Dial Renamer"};
  MenuEntry MenuPoseFile{MenuCR2Tools, "MenuPoseFile", "Pose File Creator"};
  MenuEntry menuMatFile{MenuCR2Tools, "menuMatFile", "MAT/MAP File Creator"};
  MenuEntry MenuMor{MenuCR2Tools, "MenuMor", "MOR File Creator"};
  MenuEntry menuCombinePZ2{MenuCR2Tools, "menuCombinePZ2", "Combine PZ2 MOR Files"};
  MenuEntry MenuMakeMTL{MenuCR2Tools, "MenuMakeMTL", "MTL File Creator"};
  MenuEntry menuNewCR2ExtOBJ{MenuCR2Tools, "menuNewCR2ExtOBJ",
                             "Make Library File with External OBJ"};
  MenuEntry menuMirror{MenuCR2Tools, "menuMirror", "Copy Morph With Mirroring Enabled"};
  MenuEntry MenuPZ3Cr2Conv{MenuCR2Tools, "MenuPZ3Cr2Conv", "PZ3 to CR2 Convertor"};
  MenuEntry MenuPZ3AVI{MenuCR2Tools, "MenuPZ3AVI", "Create AVI Background File"};
  MenuEntry MenuScale{MenuCR2Tools, "MenuScale", "Scaling Background Picture"};
  MenuEntry MenuCoordMat{MenuCR2Tools, "MenuCoordMat", "Coordinate Materials"};
  MenuEntry MenuP3P4Cam{MenuCR2Tools, "MenuP3P4Cam", "P3 to P4 Camera Convertor"};
  MenuEntry MenuTransferParts{MenuCR2Tools, "MenuTransferParts", "Transfer Body Parts"};
  MenuEntry MenuDumpIK{MenuCR2Tools, "MenuDumpIK", "Remove IK Chains"};
  MenuEntry menuNullFig{MenuCR2Tools, "menuNullFig", "Create Null Figure"};
  MenuEntry menuERCUnique{MenuCR2Tools, "menuERCUnique", "ERC Unique Name"};
  MenuEntry menuFilesRemove{MenuCR2Tools, "menuFilesRemove", "Remove/Backup Files"};
  MenuEntry menuDialTrackSpeed{MenuCR2Tools, "menuDialTrackSpeed", "Dial Tracking Speed"};
  MenuEntry menuGeomSwitch{MenuCR2Tools, "menuGeomSwitch", "Geometry Switching"};
  MenuEntry menuRenumberFiles{MenuCR2Tools, "menuRenumberFiles", "Renumber File Sequence"};

  MenuEntry MenuPhiTools{form_, "MenuPhiTools", "Phi Tools"};
  MenuEntry MenuPhi{MenuPhiTools, "MenuPhi", "Create Phi File"};
  MenuEntry MenuViewPhi{MenuPhiTools, "MenuViewPhi", "View Phi File"};
  MenuEntry MenuInstallCR2{form_, "MenuInstallCR2", "Install Files From CR2"};
  MenuEntry MenuLauncher{form_, "MenuLauncher", "Launcher"};
  MenuEntry MenuPoser{form_, "MenuPoser", "Poser"};
  MenuEntry MenuPStart{form_, "MenuPStart", "PStart"};
  MenuEntry MenuNotes{form_, "MenuNotes", "Notes"};
  MenuEntry MenuNotebook{MenuNotes, "MenuNotebook", "Open Notebook"};
  MenuEntry MenuNoteFile{MenuNotes, "MenuNoteFile", "Open Note File"};
  MenuEntry MenuSpace{form_, "MenuSpace", " "};
  MenuEntry MenuHelpTop{form_, "MenuHelpTop", "Help"};
  MenuEntry MenuHelp{MenuHelpTop, "MenuHelp", "Help"};
  MenuEntry menuWebTutorials{MenuHelpTop, "menuWebTutorials", "Norvik Tutorials on the Net"};
  MenuEntry MenuPlay{MenuHelpTop, "MenuPlay", "Play"};
  MenuEntry menuCheckVer{MenuHelpTop, "menuCheckVer", "Check for Current Version and News"};
  MenuEntry MenuAbout{MenuHelpTop, "MenuAbout", "About"};
};

}  // namespace norvik::front
