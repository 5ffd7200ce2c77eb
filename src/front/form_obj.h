#pragma once
// The OBJ workshop: the form on which a mesh is read, looked at and worked on.

#include "front/choice_controls.h"
#include "front/form.h"
#include "front/list_box.h"
#include "front/mesh_mark.h"
#include "front/picture_box.h"
#include "front/plain_controls.h"
#include "front/rich_text.h"
#include "front/text_controls.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace norvik::front {

/// A rename that is taken back before it is written.
struct RenameBack {
  bool materials = false;              ///< of a material, else of a group
  int index = 0;                       ///< in the list of pending renames
  std::vector<std::string> also = {};  ///< the entries that went with it, filled in
};

class FormOBJ : public Form {
 public:
  FormOBJ();

  /// Gives everything the state in which the form is loaded: nothing read, the tools hidden.
  void restoreStart();

  /// Gives the drawing surfaces as many pixels as their places on the form have.
  void makeSurfaces();
  /// Gives their memory back.
  void dropSurfaces();

  /// The flat views, in the order of the view's number: front, side, top.
  std::array<PictureBox*, 3> flatViews() { return {&PictureStore, &PictureStore2, &PictureStore3}; }

  /// The pictures of a second mesh, in the same order.
  std::array<PictureBox*, 3> overlays() {
    return {&PictureAddObjFront, &PictureAddObjSide, &PictureAddObjTop};
  }

  // What crosses the workshop's tools.

  bool ReadParamObj = false;    ///< the next read takes "\Param.obj"
  bool ReadAgain = false;       ///< a tool starts the read: path and line endings are settled
  bool AddMode = false;         ///< a second mesh is in view
  bool RenamesPending = false;  ///< groups or materials wait for the rewrite on leaving
  bool LopOn = false;           ///< the lop box is being drawn
  /// A mirrored mesh has its faces turned round too, so that they look outwards again.
  bool TurnFacesRound = false;
  // The names as the read left them, once one was renamed; empty before that.
  std::vector<std::string> GroupsAsRead;
  std::vector<std::string> MaterialsAsRead;
  int MapDrawn = 0;  ///< 1 when a template is on PictureUVMap
  int MapSaved = 0;  ///< 1 when it is saved

  // What only a window asks for.

  Event<RenameBack&> renameTakenBack{*this};
  Event<const MarkWanted&> markWanted{*this};
  std::shared_ptr<const MeshMark> Mark;  ///< null while nothing is marked

  // The views. Their surfaces have pixels while the form is loaded.

  PictureBox PictureObjViewer2{*this, "PictureObjViewer2"};  ///< 3D
  PictureBox PictureOBJViewer{*this, "PictureOBJViewer"};
  /// The front view that is drawn without 3D.
  PictureBox PictureNoDX{*this, "PictureNoDX"};
  PictureBox PictureStore{*this, "PictureStore"};    ///< front
  PictureBox PictureStore2{*this, "PictureStore2"};  ///< side
  PictureBox PictureStore3{*this, "PictureStore3"};  ///< top
  PictureBox PictureUVMap{*this, "PictureUVMap"};
  PictureBox PictureSecMap{*this, "PictureSecMap"};
  /// For drawing by hand, and for texture maps.
  PictureBox PictureZoom{*this, "PictureZoom"};
  PictureBox PictureAddObjFront{*this, "PictureAddObjFront"};
  PictureBox PictureAddObjSide{*this, "PictureAddObjSide"};
  PictureBox PictureAddObjTop{*this, "PictureAddObjTop"};
  /// They cover the work.
  Image ImageBoss{*this, "ImageBoss"};
  Image ImageRDS{*this, "ImageRDS"};
  Image ImageSaveMap{*this, "ImageSaveMap"};

  // The read and what it shows.

  /// Reads the mesh.
  Label LabelView{*this, "LabelView", "View"};
  /// Drops the mesh and asks for another one.
  PictureButton PictureNewFile{*this, "PictureNewFile"};
  Frame Frame1{*this, "Frame1", "View"};
  OptionButton OptionFrontView{*this, "OptionFrontView", "Front", &Frame1};
  OptionButton OptionSideView{*this, "OptionSideView", "Side", &Frame1};
  OptionButton OptionTopView{*this, "OptionTopView", "Top", &Frame1};
  Frame Frame2{*this, "Frame2", "Colors"};
  OptionButton OptionNoColors{*this, "OptionNoColors", "No Colors", &Frame2};
  OptionButton OptionColorGroups{*this, "OptionColorGroups", "Groups", &Frame2};
  OptionButton OptionColorMaterials{*this, "OptionColorMaterials", "Materials", &Frame2};
  Frame Frame3{*this, "Frame3", "Draw"};
  OptionButton OptionShowPolys{*this, "OptionShowPolys", "Polygons", &Frame3};
  OptionButton OptionShowPoints{*this, "OptionShowPoints", "Points", &Frame3};
  CheckBox CheckHiddenFaces{*this, "CheckHiddenFaces", "Hidden Faces"};
  OptionButton OptionAlphabetize{*this, "OptionAlphabetize", "Alphabetize"};
  Label LabelHotKeys{*this, "LabelHotKeys", "Hot Keys"};
  ListBox ListHotKeys{*this, "ListHotKeys"};
  Label LabelWait{*this, "LabelWait", "Please wait..."};
  Label LabelPlay{*this, "LabelPlay", "PLAY"};
  Label LabelBoss{*this, "LabelBoss", "Boss Button"};

  // Groups and materials.

  CommandButton CommandListGroups{*this, "CommandListGroups", "List Groups"};
  CommandButton CommandListMats{*this, "CommandListMats", "List Materials"};
  /// The group names of the mesh in first-seen order.
  ListBox ListGroups{*this, "ListGroups"};
  ListBox ListMaterials{*this, "ListMaterials"};
  /// Hidden: a line of the mesh, "*", and its red, green and blue from 1 to 254.
  ListBox ListGroupColors{*this, "ListGroupColors"};
  ListBox ListMATColors{*this, "ListMATColors"};
  RichTextBox RichTextBoxGroups{*this, "RichTextBoxGroups"};
  RichTextBox RichTextBoxMaterials{*this, "RichTextBoxMaterials"};
  Label LabelRichRename{*this, "LabelRichRename", "Rename"};
  /// Hidden: an old name, "*", and the new one.
  ListBox ListGrpRen{*this, "ListGrpRen"};
  ListBox ListMatRen{*this, "ListMatRen"};
  TextBox TextGrpRename{*this, "TextGrpRename"};
  TextBox TextMatRename{*this, "TextMatRename"};
  CheckBox CheckSaveGroups{*this, "CheckSaveGroups", "Save Groups"};
  CheckBox CheckSaveMaterials{*this, "CheckSaveMaterials", "Save Materials"};
  ListBox ListGroupsSave{*this, "ListGroupsSave", Selection::ticks};
  ListBox ListMaterialsSave{*this, "ListMaterialsSave", Selection::ticks};

  // Maps.

  Label LabelMakeUV{*this, "LabelMakeUV", "Make UV"};
  Label LabelUVMap{*this, "LabelUVMap", "UV Map"};
  Label LabelSecMap{*this, "LabelSecMap", "Secondary Map"};
  Label LabelSaveMap{*this, "LabelSaveMap", "Save Map"};
  Label LabelViewCR2TexMap{*this, "LabelViewCR2TexMap", "View Map"};
  Label LabelApplyMap{*this, "LabelApplyMap", "Apply Map"};
  TextBox TextMapSize{*this, "TextMapSize"};
  TextBox TextMapSizeSec{*this, "TextMapSizeSec"};

  // Tools that change the mesh, and notes on it.

  Label LabelMirror{*this, "LabelMirror", "Mirror"};
  PictureButton PictureAddOBJ{*this, "PictureAddOBJ"};
  PictureButton PictureMerge{*this, "PictureMerge"};
  PictureButton PictureLop{*this, "PictureLop"};
  PictureButton PicturePhiLopper{*this, "PicturePhiLopper"};
  /// Hidden: the colours to remove.
  ListBox ListLop{*this, "ListLop"};
  PictureButton PictureMagGlass{*this, "PictureMagGlass"};
  TextBox TextNotes{*this, "TextNotes"};

  // Hidden labels that hold state: the extents of the mesh in view units.

  Label LabelBiggestX{*this, "LabelBiggestX"};
  Label LabelSmallestX{*this, "LabelSmallestX"};
  Label LabelBiggestY{*this, "LabelBiggestY"};
};

/// Gives the controls of the workshop their places, in pixels.
void layOut(FormOBJ& form);

}  // namespace norvik::front
