#include "desktop/guide/guide_places.h"

#include <algorithm>
#include <array>

namespace norvik::desktop {

namespace {

constexpr std::string_view kMain = "Opening";
constexpr std::string_view kMesh = "FormOBJ";

constexpr std::string_view kOpen = "open-and-save.md#open-a-file";
constexpr std::string_view kPaths = "open-and-save.md#point-a-figure-at-other-files";
constexpr std::string_view kSave = "open-and-save.md#save";
constexpr std::string_view kBrackets = "open-and-save.md#check-the-brackets";
constexpr std::string_view kProgram = "open-and-save.md#poser-and-the-program-itself";
constexpr std::string_view kPart = "window.md#one-body-part";
constexpr std::string_view kRename = "channels.md#give-a-morph-or-a-body-part-another-name";
constexpr std::string_view kRemove = "channels.md#take-a-morph-out";
constexpr std::string_view kOrder = "dials.md#another-order-for-the-morphs";
constexpr std::string_view kHidden = "dials.md#hidden-dials";
constexpr std::string_view kSpeed = "dials.md#tracking-speed";
constexpr std::string_view kLimits = "dials.md#limits-bending-twist-parameters";
constexpr std::string_view kUnique = "dials.md#a-unique-figure-name";
constexpr std::string_view kMirrorMorph = "dials.md#mirroring-a-morph";
constexpr std::string_view kColour = "materials.md#change-a-colour";
constexpr std::string_view kMaster = "master-figures.md#a-master-cr2";
constexpr std::string_view kCondense = "mesh-tools.md#condense-it";
constexpr std::string_view kScale = "mesh-tools.md#make-it-larger-or-smaller";
constexpr std::string_view kNames = "mesh-tools.md#groups-and-materials";
constexpr std::string_view kTemplates = "mesh-tools.md#texture-templates";
constexpr std::string_view kMerge = "mesh-surgery.md#add-a-second-mesh-and-merge";
constexpr std::string_view kExport = "mesh-surgery.md#export-embedded-geometry";
constexpr std::string_view kGeometry = "alternate-geometry.md";
constexpr std::string_view kInstall = "install-a-figure.md";
constexpr std::string_view kDraw = "view-a-mesh.md#draw-by-hand-and-hide";
constexpr std::string_view kTurn = "view-a-mesh.md#turn-it";
constexpr std::string_view kNotes = "manual-editor.md#notes";
constexpr std::string_view kTheme = "window.md#light-and-dark";

constexpr std::array kPlaces = std::to_array<GuidePlace>({
    {kMain, "", "window.md"},
    {kMain, "ListActors", kPart},
    {kMain, "ListChannels", "channels.md"},
    {kMain, "ListMaterials", kColour},
    {kMain, "PictureMatColor", kColour},
    {kMain, "PictureMatHiLite", kColour},
    {kMain, "LabelFileName", "manual-editor.md#open-it"},
    {kMain, "LabelOpenSource", "copy-a-morph.md#2-open-the-source"},
    {kMain, "PictureViewChannels", kPart},
    {kMain, "PictureCopyToDest", "copy-a-morph.md#4-copy"},
    {kMain, "PictureRenameMorph", kRename},
    {kMain, "OptionChannelRename", kRename},
    {kMain, "OptionBodyPartRename", kRename},
    {kMain, "TextMorphRename", kRename},
    {kMain, "PictureTrash", kRemove},
    {kMain, "PictureMirror", kMirrorMorph},
    {kMain, "PictureJoints", "dials.md#joints"},
    {kMain, "PictureEMC", "erc-links.md#make-a-link"},
    {kMain, "PictureChangeRatio", "erc-links.md#see-the-links-change-a-ratio"},
    {kMain, "PictureEditor", "manual-editor.md"},
    {kMain, "PictureMapViewer", "small-tools.md#view-a-map"},
    {kMain, "PictureOBJView", "view-a-mesh.md"},
    {kMain, "PictureOBJExtract", kExport},
    {kMain, "ListOBJExtract", kExport},
    {kMain, "PictureMash", kCondense},
    {kMain, "OptionMashOBJ", kCondense},
    {kMain, "OptionMashMorph", kCondense},
    {kMain, "PictureScaleObj", kScale},
    {kMain, "SliderOBJScale", kScale},
    {kMain, "TextOBJScale", kScale},
    {kMain, "CheckOBJBatch", kScale},
    {kMain, "LabelOBJFileName", "mesh-tools.md"},
    {kMain, "MeshPage", "mesh-tools.md"},
    {kMain, "PathBlock", kPaths},
    {kMain, "ListAllTexMaps", kPaths},
    {kMain, "ListMRU", kOpen},
    {kMain, "PictureBrktsOK", kBrackets},
    {kMain, "PictureBrktLeft", kBrackets},
    {kMain, "PictureBrktRight", kBrackets},
    {kMain, "PicturePushPin", kBrackets},
    {kMain, "ListChannelsReorderByPart", kOrder},
    {kMain, "ListChannelsReorderNewOrder", kOrder},
    {kMain, "PictureChannelReorderDone", kOrder},
    {kMain, "ListChannelsReorder", kSpeed},
    {kMain, "TextTrackingSpeed", kSpeed},
    {kMain, "FrameDialHiding", kHidden},
    {kMain, "LabelX", kHidden},
    {kMain, "LabelY", kHidden},
    {kMain, "LabelZ", kHidden},
    {kMain, "LimitsCard", kLimits},
    {kMain, "TwistCard", kLimits},
    {kMain, "TextERCUnique", kUnique},
    {kMain, "ListAltGeomActors", kGeometry},
    {kMain, "TextOpeningNotes", kNotes},
    {kMain, "ListboxListCR2Files", kInstall},
    {kMain, "PictureInstallCR2", kInstall},
    {kMain, "PictureCR2InstallCancel", kInstall},
    {kMain, "PicturePrintCR2Files", kInstall},

    {kMain, "MenuFileOpen", kOpen},
    {kMain, "menuRecent", kOpen},
    {kMain, "MenuFileSave", kSave},
    {kMain, "MenuFileSaveAs", kSave},
    {kMain, "menuEditor", "manual-editor.md"},
    {kMain, "menuPLoc", kProgram},
    {kMain, "menuScreenRes", "window.md#the-window-itself"},
    {kMain, "MenuAttrib", "file-tools.md#take-the-read-only-attribute-away"},
    {kMain, "MenuFileExit", kSave},
    {kMain, "MenuPropObjRel", kPaths},
    {kMain, "MenuPropTexRel", kPaths},
    {kMain, "MenuMakeMaster", kMaster},
    {kMain, "MenuMasterP3", kMaster},
    {kMain, "MenuP3Male", kMaster},
    {kMain, "MenuP3Female", kMaster},
    {kMain, "MenuMasterP4", kMaster},
    {kMain, "MenuP4Male", kMaster},
    {kMain, "MenuP4Female", kMaster},
    {kMain, "MenuVic", kMaster},
    {kMain, "MenuMasterAny", kMaster},
    {kMain, "MenuAnyMasterStandard", kMaster},
    {kMain, "MenuAnyMasterNoFBM", kMaster},
    {kMain, "MenuBend", kLimits},
    {kMain, "MenuBendOff", kLimits},
    {kMain, "MenuBendOn", kLimits},
    {kMain, "MenuBrack", kBrackets},
    {kMain, "MenuLimits", kLimits},
    {kMain, "MenuDials", kHidden},
    {kMain, "menuHideDialsTrans", kHidden},
    {kMain, "menuHideDialsChannels", kHidden},
    {kMain, "MenuTwist", kLimits},
    {kMain, "MenuDialRen", "dial-names.md"},
    {kMain, "MenuPoseFile", "pose-files.md"},
    {kMain, "menuMatFile", "mat-files.md"},
    {kMain, "MenuMor", "mor-files.md"},
    {kMain, "menuCombinePZ2", "weld-poses.md"},
    {kMain, "MenuMakeMTL", "scenes.md#materials-as-an-mtl-file"},
    {kMain, "menuNewCR2ExtOBJ", "master-figures.md#a-library-file-with-an-external-obj"},
    {kMain, "menuMirror", kMirrorMorph},
    {kMain, "MenuPZ3Cr2Conv", "scenes.md#a-figure-out-of-a-scene"},
    {kMain, "MenuPZ3AVI", "scenes.md#a-background-film-as-a-prop"},
    {kMain, "MenuScale", "small-tools.md#make-graph-paper"},
    {kMain, "MenuCoordMat", "materials.md#coordinate-the-materials-with-the-obj"},
    {kMain, "MenuP3P4Cam", "scenes.md#the-cameras-of-a-scene"},
    {kMain, "MenuTransferParts", "body-part-transfer.md"},
    {kMain, "MenuDumpIK", "dials.md#ik-chains"},
    {kMain, "menuNullFig", "master-figures.md#a-null-figure"},
    {kMain, "menuERCUnique", kUnique},
    {kMain, "menuFilesRemove", "file-tools.md#remove-and-back-up"},
    {kMain, "menuDialTrackSpeed", kSpeed},
    {kMain, "menuGeomSwitch", kGeometry},
    {kMain, "menuRenumberFiles", "file-tools.md#renumber-a-sequence"},
    {kMain, "MenuPhi", "phi-files.md#make-one"},
    {kMain, "MenuViewPhi", "phi-files.md#look-at-one-change-it-print-it"},
    {kMain, "MenuInstallCR2", kInstall},
    {kMain, "MenuLauncher", "small-tools.md#open-files-from-a-file-manager"},
    {kMain, "MenuPoser", kProgram},
    {kMain, "MenuPStart", kProgram},
    {kMain, "MenuNotebook", kNotes},
    {kMain, "MenuNoteFile", kNotes},
    {kMain, "MenuHelp", kGuideStart},
    {kMain, "menuWebTutorials", kProgram},
    {kMain, "MenuPlay", kDraw},
    {kMain, "menuCheckVer", kProgram},
    {kMain, "MenuAbout", kProgram},
    {kMain, "FilterList", "channels.md#find-it-in-a-long-list"},
    {kMain, "Filter.ListActors", "channels.md#find-it-in-a-long-list"},
    {kMain, "Filter.ListChannels", "channels.md#find-it-in-a-long-list"},
    {kMain, "Theme.light", kTheme},
    {kMain, "Theme.dark", kTheme},
    {kMain, "Theme.system", kTheme},
    {kMain, "History", "history.md"},
    {kMain, "UndoLast", "history.md"},
    {kMain, "HistoryNews", "history.md"},
    {"HistoryWindow", "", "history.md"},

    {kMesh, "", "view-a-mesh.md"},
    {kMesh, "LabelView", "view-a-mesh.md#read-it"},
    {kMesh, "PictureNewFile", "view-a-mesh.md#leave-it"},
    {kMesh, "LabelHotKeys", kTurn},
    {kMesh, "ListHotKeys", kTurn},
    {kMesh, "PictureObjViewer2", kTurn},
    {kMesh, "PictureNoDX", kTurn},
    {kMesh, "LabelPlay", kDraw},
    {kMesh, "LabelBoss", kDraw},
    {kMesh, "PictureZoom", kDraw},
    {kMesh, "TextNotes", "view-a-mesh.md#leave-it"},
    {kMesh, "LabelMirror", "mesh-surgery.md#mirror"},
    {kMesh, "PictureAddOBJ", kMerge},
    {kMesh, "PictureMerge", kMerge},
    {kMesh, "PictureAddObjFront", kMerge},
    {kMesh, "PictureAddObjSide", kMerge},
    {kMesh, "PictureAddObjTop", kMerge},
    {kMesh, "PictureLop", "mesh-surgery.md#cut-parts-out"},
    {kMesh, "PicturePhiLopper", "phi-files.md#cut-a-branch-out-of-a-mesh"},
    {kMesh, "CommandListGroups", kNames},
    {kMesh, "CommandListMats", kNames},
    {kMesh, "ListGroups", kNames},
    {kMesh, "ListMaterials", kNames},
    {kMesh, "CheckSaveGroups", kNames},
    {kMesh, "LabelRichRename", kNames},
    {kMesh, "TextGrpRename", kNames},
    {kMesh, "LabelMakeUV", kTemplates},
    {kMesh, "LabelUVMap", kTemplates},
    {kMesh, "LabelSecMap", kTemplates},
    {kMesh, "LabelSaveMap", kTemplates},
    {kMesh, "TextMapSize", kTemplates},
    {kMesh, "TextMapSizeSec", kTemplates},
    {kMesh, "LabelViewCR2TexMap", kTemplates},
    {kMesh, "LabelApplyMap", kTemplates},
    {kMesh, "PictureUVMap", kTemplates},
    {kMesh, "PictureSecMap", kTemplates},
    {kMesh, "PictureMagGlass", "small-tools.md#look-closely"},

    {"DialogERC", "", "erc-links.md#make-a-link"},
    {"FormCR2Install", "", kInstall},
    {"FormECM", "", "erc-links.md#make-a-link"},
    {"FormEditor", "", "manual-editor.md"},
    {"FormEditor", "PictureFind", "manual-editor.md#find-replace-go-to"},
    {"FormEditor", "ComboFind", "manual-editor.md#find-replace-go-to"},
    {"FormEditor", "PictureReplace", "manual-editor.md#find-replace-go-to"},
    {"FormEditor", "TextReplace", "manual-editor.md#find-replace-go-to"},
    {"FormEditor", "PictureSave", "manual-editor.md#save-print-leave"},
    {"FormEditor", "PicturePrint", "manual-editor.md#save-print-leave"},
    {"FormEditor", "PictureSecFile", "manual-editor.md#a-second-file"},
    {"FormHole", "", kNotes},
    {"FormLaunch", "", "small-tools.md#open-files-from-a-file-manager"},
    {"FormListEMCs", "", "erc-links.md#see-the-links-change-a-ratio"},
    {"FormMOR", "", "mor-files.md"},
    {"FormMatCoord", "", "materials.md#coordinate-the-materials-with-the-obj"},
    {"FormNotes", "", kNotes},
    {"FormPZ2", "", "pose-files.md"},
    {"FormPZ2Combine", "", "weld-poses.md"},
    {"FormPhi", "", "phi-files.md#look-at-one-change-it-print-it"},
    {"FormPhi", "MenuPrint", "phi-files.md#look-at-one-change-it-print-it"},
    {"FormPhi", "MenuPhiHelp", "phi-files.md"},
    {"FormRemoveFiles", "", "file-tools.md#remove-and-back-up"},
    {"FormRenumber", "", "file-tools.md#renumber-a-sequence"},
    {"FormScale", "", "small-tools.md#make-graph-paper"},
    {"FormTree", "", "phi-files.md#cut-a-branch-out-of-a-mesh"},
    {"FormViewer", "", "small-tools.md#view-a-map"},
    {"Magnifier", "", "small-tools.md#look-closely"},
    {"Renamer", "", "dial-names.md"},
    {"Renamer", "MenuHelp", "dial-names.md"},
});

constexpr std::array kSigns = std::to_array<GuidePlace>({
    {kMain, "ListboxListCR2Files", kInstall},
    {kMain, "MeshPage", "mesh-tools.md"},
    {"FormPZ2", "LabelMAT", "mat-files.md"},
});

}  // namespace

std::span<const GuidePlace> guidePlaces() {
  return kPlaces;
}

std::span<const GuidePlace> guideSigns() {
  return kSigns;
}

std::string_view guidePlaceOf(std::string_view window, std::string_view control) {
  const auto* const found = std::find_if(
      kPlaces.begin(), kPlaces.end(),
      [&](const GuidePlace& place) { return place.window == window && place.control == control; });
  return found == kPlaces.end() ? std::string_view{} : found->place;
}

}  // namespace norvik::desktop
