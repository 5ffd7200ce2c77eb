#pragma once
// The OBJ workshop: the form on which a mesh is read, looked at and worked on.

#include "front/choice_controls.h"
#include "front/form.h"
#include "front/list_box.h"
#include "front/picture_box.h"
#include "front/plain_controls.h"
#include "front/text_controls.h"

namespace norvik::front {

class FormOBJ : public Form {
 public:
  FormOBJ();

  // What crosses the workshop's tools.

  bool ReadParamObj = false;  ///< the next read takes "\Param.obj"
  bool ReadAgain = false;  ///< a tool has started the read: the path and line endings are settled
  bool AddMode = false;    ///< a second mesh is in view
  bool RenamesPending = false;

  // The views.

  PictureBox PictureObjViewer2{*this, "PictureObjViewer2", kViewSize, kViewSize};  ///< 3D
  PictureBox PictureOBJViewer{*this, "PictureOBJViewer", kViewSize, kViewSize};
  PictureBox PictureNoDX{*this, "PictureNoDX", kViewSize, kViewSize};
  PictureBox PictureStore{*this, "PictureStore", kViewSize, kViewSize};    ///< front
  PictureBox PictureStore2{*this, "PictureStore2", kViewSize, kViewSize};  ///< side
  PictureBox PictureStore3{*this, "PictureStore3", kViewSize, kViewSize};  ///< top
  PictureBox PictureUVMap{*this, "PictureUVMap", kMapSize, kMapSize};
  PictureBox PictureSecMap{*this, "PictureSecMap", kMapSize, kMapSize};
  PictureBox PictureZoom{*this, "PictureZoom", kViewSize, kViewSize};
  PictureBox PictureAddObjFront{*this, "PictureAddObjFront", kViewSize, kViewSize};
  PictureBox PictureAddObjSide{*this, "PictureAddObjSide", kViewSize, kViewSize};
  PictureBox PictureAddObjTop{*this, "PictureAddObjTop", kViewSize, kViewSize};
  Image ImageBoss{*this, "ImageBoss"};
  Image ImageRDS{*this, "ImageRDS"};
  Image ImageSaveMap{*this, "ImageSaveMap"};

  // The choice of view.

  Label LabelView{*this, "LabelView", "View"};
  Frame Frame1{*this, "Frame1", "View"};
  OptionButton OptionFrontView{*this, "OptionFrontView", "Front", &Frame1};
  OptionButton OptionSideView{*this, "OptionSideView", "Side", &Frame1};
  OptionButton OptionTopView{*this, "OptionTopView", "Top", &Frame1};

 private:
  static constexpr int kViewSize = 600;
  static constexpr int kMapSize = 580;
};

}  // namespace norvik::front
