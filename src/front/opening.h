#pragma once
// The main form. Its controls hold most of what the tools share; their names are the vocabulary of
// the whole program.

#include "front/choice_controls.h"
#include "front/common_dialog.h"
#include "front/file_lists.h"
#include "front/form.h"
#include "front/list_box.h"
#include "front/opening_menus.h"
#include "front/plain_controls.h"
#include "front/text_controls.h"
#include "front/timer.h"

#include <array>
#include <string>

namespace norvik::front {

/// The version in the main form's caption and in the settings.
inline constexpr std::string_view kVersion = "5.12";

class Opening : public Form, public OpeningMenus {
 public:
  /// All but the menus and ImageSplash starts hidden.
  Opening();

  // What crosses the tools.

  std::string OpenedPath;     ///< the file chosen last in any open, destination or source
  std::string DestPath;       ///< the destination pane's file
  std::string ObjLineText;    ///< "figureResFile :" and the colon path, from the OBJ path box
  std::string PoserLocation;  ///< Poser's folder with its backslash, as last read from the settings
  std::string ProgramFolder;  ///< the scratch files' folder, without a backslash at its end
  std::string DragOrigin;     ///< "Channels" or "Actors": where the mouse went down last
  int RenameKind = 0;         ///< 48: a new name is awaited; 481: the last rename was a body part's
  std::string ChosenPart;     ///< the actor that a dial tool was last used on
  std::string MirrorMorph;    ///< the morph that waits for its other side; empty: none
  float TargetLine = 0;       ///< the line whose tracking speed is being entered
  bool PathsEdited = false;   ///< a path box holds a change that is not in the file yet
  bool SkipOpenDialog = false;   ///< the next open takes OpenedPath
  bool OpenCancelled = false;    ///< the operator refused a repair of line endings
  bool PendingTempSave = false;  ///< the next Save As stores a tool's result, "\CR2.tmp"
  int Mode = 0;                  ///< 69 arms the extraction of the body part transfer
  float ScreenScaleX = 0;        ///< screen to form; 0 until the form was sized to the screen
  float ScreenScaleY = 0;
  int MruCount = 0;  ///< additions to ListMRU, see AddMenuElement

  // The destination pane.

  /// The destination's path, shortened; tools compare it with LabelChannelFileName.
  Label LabelFileName{*this, "LabelFileName"};
  /// The destination's size in bytes.
  Label LabelFileSize{*this, "LabelFileSize"};
  Label LabelBodyParts{*this, "LabelBodyParts", "Body Parts"};
  /// The destination's body parts, each with the number of its line behind a "*".
  ListBox ListActors{*this, "ListActors", Selection::multiple};
  Label LabelMaterials{*this, "LabelMaterials", "Materials"};
  /// The destination's materials.
  ListBox ListMaterials{*this, "ListMaterials"};
  /// Hidden: their colours, red, green and blue from 0 to 256, by the same index.
  ListBox ListMATColors{*this, "ListMATColors"};
  /// Hidden: their highlights, the same.
  ListBox ListMatHiLite{*this, "ListMatHiLite"};
  /// Its background is the chosen material's colour.
  PictureButton PictureMatColor{*this, "PictureMatColor"};
  /// Its background is the chosen material's highlight.
  PictureButton PictureMatHiLite{*this, "PictureMatHiLite"};

  // The source pane.

  Label LabelOpenSourceTitle{*this, "LabelOpenSourceTitle", "Open Source"};
  /// A picture button, whatever its name says.
  PictureButton LabelOpenSource{*this, "LabelOpenSource"};
  /// The source's path, shortened; the destination's while no source is open.
  Label LabelChannelFileName{*this, "LabelChannelFileName"};
  /// Channels, or the source's body parts; item 0 says which. Names are read back by column.
  ListBox ListChannels{*this, "ListChannels", Selection::multiple};
  Shape ShapeChannels{*this, "ShapeChannels"};

  // The path block.

  Label LabelMainOBJPath{*this, "LabelMainOBJPath", "Main OBJ"};
  /// What stands behind "Geometries:" in the figure's reference, or an edited path.
  TextBox TextMainOBJ{*this, "TextMainOBJ"};
  Label LabelPropOBJs{*this, "LabelPropOBJs", "Prop OBJs"};
  /// The geometry of the figure's props, for reading.
  ListBox ListPropObj{*this, "ListPropObj"};
  Label LabelMainTex{*this, "LabelMainTex", "Main Texture"};
  TextBox TextMainTex{*this, "TextMainTex"};
  Label LabelMainBump{*this, "LabelMainBump", "Main Bump"};
  TextBox TextMainBump{*this, "TextMainBump"};
  Label LabelMainTrans{*this, "LabelMainTrans", "Main Transparency"};
  TextBox TextMainTrans{*this, "TextMainTrans"};
  Label LabelMainReflect{*this, "LabelMainReflect", "Main Reflection"};
  TextBox TextMainReflect{*this, "TextMainReflect"};
  Shape Shape1{*this, "Shape1"};
  Shape LineObj{*this, "LineObj"};
  /// Every texture of the figure; pops up over TextMainTex.
  ListBox ListAllTexMaps{*this, "ListAllTexMaps"};

  // Tool pictures.

  PictureButton PictureCopyToDest{*this, "PictureCopyToDest"};
  PictureButton PictureViewChannels{*this, "PictureViewChannels"};
  PictureButton PictureJoints{*this, "PictureJoints"};
  PictureButton PictureTrash{*this, "PictureTrash"};
  PictureButton PictureEMC{*this, "PictureEMC"};
  PictureButton PictureEditor{*this, "PictureEditor"};
  PictureButton PictureChangeRatio{*this, "PictureChangeRatio"};
  PictureButton PictureRenameMorph{*this, "PictureRenameMorph"};
  PictureButton PictureOBJView{*this, "PictureOBJView"};
  PictureButton PictureOBJExtract{*this, "PictureOBJExtract"};
  PictureButton PictureScaleObj{*this, "PictureScaleObj"};
  PictureButton PictureMash{*this, "PictureMash"};
  PictureButton PictureMirror{*this, "PictureMirror"};
  PictureButton PictureMapViewer{*this, "PictureMapViewer"};
  PictureButton PictureInstallCR2{*this, "PictureInstallCR2"};
  PictureButton PictureCR2InstallCancel{*this, "PictureCR2InstallCancel"};
  PictureButton PicturePrintCR2Files{*this, "PicturePrintCR2Files"};
  PictureButton PictureChannelReorderDone{*this, "PictureChannelReorderDone"};
  /// The tile of the closing animation.
  PictureButton PictureTile{*this, "PictureTile"};
  /// The bracket checker found pairs.
  PictureButton PictureBrktsOK{*this, "PictureBrktsOK"};
  /// It found too few left brackets.
  PictureButton PictureBrktLeft{*this, "PictureBrktLeft"};
  /// It found too few right ones.
  PictureButton PictureBrktRight{*this, "PictureBrktRight"};
  /// Reminds the operator to click the bracket picture.
  PictureButton PicturePushPin{*this, "PicturePushPin"};

  // Small entry controls, hidden until a tool needs them.

  TextBox TextMorphRename{*this, "TextMorphRename"};
  OptionButton OptionChannelRename{*this, "OptionChannelRename", "Channel"};
  OptionButton OptionBodyPartRename{*this, "OptionBodyPartRename", "Body Part"};
  TextBox TextERCUnique{*this, "TextERCUnique"};
  TextBox TextTrackingSpeed{*this, "TextTrackingSpeed"};
  TextBox TextOBJScale{*this, "TextOBJScale"};
  Slider SliderOBJScale{*this, "SliderOBJScale", -100, 100};
  CheckBox CheckOBJBatch{*this, "CheckOBJBatch", "Batch"};
  Frame FrameMash{*this, "FrameMash"};
  OptionButton OptionMashOBJ{*this, "OptionMashOBJ", "OBJ", &FrameMash};
  OptionButton OptionMashMorph{*this, "OptionMashMorph", "Morph", &FrameMash};
  Frame FrameExtractObj{*this, "FrameExtractObj"};
  OptionButton OptionSepObjFiles{*this, "OptionSepObjFiles", "Separate Files", &FrameExtractObj};
  OptionButton OptionOneObjFile{*this, "OptionOneObjFile", "One File", &FrameExtractObj};
  Frame FrameDialHiding{*this, "FrameDialHiding",
                        "Note that this won't work for most channels, for reasons no one knows..."};
  ListBox ListHideDialsChannels{*this, "ListHideDialsChannels", Selection::multiple};
  CommandButton CommandDialHideDone{*this, "CommandDialHideDone", "Done"};
  OptionButton OptionAlphabetize{*this, "OptionAlphabetize", "Alphabetize", &FrameDialHiding};
  // Each hides or shows the translation dial of its axis.
  Label LabelX{*this, "LabelX", "X"};
  Label LabelY{*this, "LabelY", "Y"};
  Label LabelZ{*this, "LabelZ", "Z"};
  // There whenever a figure is open.
  /// A body part's name; Enter forces its limits or gives them back.
  TextBox TextForceLimits{*this, "TextForceLimits"};
  /// The parts whose twist parameters can be commented out, and brought back.
  ListBox ListTwistRemove{*this, "ListTwistRemove"};
  ListBox ListTwistRestore{*this, "ListTwistRestore"};
  TextBox TextOpeningNotes{*this, "TextOpeningNotes"};
  /// The recent files, oldest first.
  ListBox ListMRU{*this, "ListMRU"};
  /// What the empty window shows.
  Image ImageSplash{*this, "ImageSplash"};

  // Lists that are state rather than display.

  /// One item a morph: actor, "*", dial, "^", line of the actor, "@", internal name.
  ListBox ListChannelsReorder{*this, "ListChannelsReorder"};
  ListBox ListChannelsReorderByPart{*this, "ListChannelsReorderByPart"};
  ListBox ListChannelsReorderNewOrder{*this, "ListChannelsReorderNewOrder"};
  ListBox ListChannelsReorderReordered{*this, "ListChannelsReorderReordered"};
  ListBox ListAltGeomActors{*this, "ListAltGeomActors"};
  ListBox ListAltGeomNames{*this, "ListAltGeomNames"};
  ListBox ListboxListCR2Files{*this, "ListboxListCR2Files"};
  ListBox ListOBJExtract{*this, "ListOBJExtract", Selection::multiple};
  ListBox ListOBJBatch{*this, "ListOBJBatch"};
  ListBox ListEMCs{*this, "ListEMCs"};

  // Hidden labels that hold state.

  /// The destination's full path.
  Label LabelFileNameForEditor{*this, "LabelFileNameForEditor"};
  /// The source's full path; the destination's while no source is open.
  Label LabelChannelFileNameForEditor{*this, "LabelChannelFileNameForEditor"};
  /// The main OBJ's full path on the disk.
  Label LabelOBJFileName{*this, "LabelOBJFileName"};
  Label LabelSaveObjPath{*this, "LabelSaveObjPath"};
  Label LabelNLen{*this, "LabelNLen"};
  Label LabelTexPathCR2Install{*this, "LabelTexPathCR2Install"};
  Label LabelObjPathCR2Install{*this, "LabelObjPathCR2Install"};
  Label LabelRtDir{*this, "LabelRtDir"};
  Label LabelEMC{*this, "LabelEMC"};

  // The body part transfer's own.

  FileList FileChooser{*this, "FileChooser"};
  /// The picked file's name.
  Label FileLabel{*this, "FileLabel"};
  /// The new part's name.
  Label NameLabel{*this, "NameLabel"};
  TextBox NameBox{*this, "NameBox"};
  ListBox ChainList{*this, "ChainList"};

  /// Hides ListAllTexMaps.
  Timer TimerListAllTexMaps{*this, "TimerListAllTexMaps", 5000};
  /// Shows PicturePushPin.
  Timer TimerPushpin{*this, "TimerPushpin", 1500};
  /// Paces the columns of the closing animation.
  Timer TimerTileClose{*this, "TimerTileClose", 200};

  // File dialogs, each with its own last name.

  CommonDialog CommonDialog1{"CommonDialog1"};  ///< opening a file
  CommonDialog CommonDialog2{"CommonDialog2"};  ///< saving one
  CommonDialog CommonDialog3{"CommonDialog3"};  ///< opening a source
  CommonDialog CommonDialog4{"CommonDialog4"};  ///< LabelMainOBJPath
  CommonDialog CommonDialog5{"CommonDialog5"};  ///< LabelMainTex
  CommonDialog CommonDialog6{"CommonDialog6"};  ///< LabelMainBump
  CommonDialog CommonDialog7{"CommonDialog7"};  ///< LabelMainTrans
  CommonDialog CommonDialog8{"CommonDialog8"};  ///< LabelMainReflect
  CommonDialog CommonDialogFindPoser{"CommonDialogFindPoser"};
  CommonDialog CommonDialogZip{"CommonDialogZip"};

  /// A file in the program folder: "\bp.txt" becomes "C:\Norvik\bp.txt".
  std::string inProgramFolder(std::string_view scratchName) const;
};

/// Gives the controls of the main form their places, in pixels.
void layOut(Opening& opening);

}  // namespace norvik::front
