#include "workshop/tool_controls.h"

#include <initializer_list>

namespace norvik::obj {

namespace {

using Controls = std::initializer_list<front::Control*>;

}  // namespace

void showTool(front::Control& control) {
  control.setEnabled(true);
  control.show();
}

void showReadTools(front::FormOBJ& form) {
  for (front::Control* control :
       Controls{&form.LabelMakeUV, &form.LabelUVMap, &form.LabelViewCR2TexMap, &form.LabelApplyMap,
                &form.TextNotes, &form.PictureAddOBJ, &form.PictureLop, &form.PicturePhiLopper}) {
    showTool(*control);
  }
}

void hideTools(front::FormOBJ& form) {
  for (front::Control* control :
       Controls{&form.LabelMirror, &form.LabelMakeUV, &form.LabelUVMap, &form.LabelViewCR2TexMap,
                &form.LabelApplyMap, &form.TextNotes, &form.PictureLop, &form.PicturePhiLopper,
                &form.PictureAddOBJ, &form.PictureMerge}) {
    control->hide();
    control->setEnabled(false);
  }
  form.CommandListGroups.setEnabled(false);
  form.CommandListMats.setEnabled(false);
  // What the tools have opened goes with them.
  for (front::Control* control :
       Controls{&form.LabelSecMap, &form.LabelSaveMap, &form.TextMapSize, &form.TextMapSizeSec,
                &form.RichTextBoxGroups, &form.RichTextBoxMaterials, &form.LabelRichRename,
                &form.ListGroups, &form.ListMaterials, &form.TextGrpRename, &form.TextMatRename,
                &form.CheckSaveGroups, &form.CheckSaveMaterials, &form.ListGroupsSave,
                &form.ListMaterialsSave, &form.PictureAddObjFront, &form.PictureAddObjSide,
                &form.PictureAddObjTop}) {
    control->hide();
  }
}

}  // namespace norvik::obj
