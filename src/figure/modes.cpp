#include "figure/modes.h"

#include "front/screen_scale.h"

namespace norvik::figure {

namespace {

constexpr float kViewLeft = 384;
constexpr int kNeutralScale = 0;

}  // namespace

void prepareForFile(front::Opening& opening) {
  opening.ListAllTexMaps.clear();
  opening.ListChannelsReorder.clear();
  opening.PictureOBJExtract.hide();
  opening.TextOBJScale.hide();
  opening.FrameMash.hide();
  opening.CheckOBJBatch.hide();
  opening.PictureOBJView.setLeft(front::scaledLeft(opening, kViewLeft));
  opening.SliderOBJScale.setValue(kNeutralScale);
}

void enterObjMode(front::Session& session, const std::string& path) {
  front::Opening& opening = session.opening;
  const std::initializer_list<front::Control*> figureControls = {&opening.LineObj,
                                                                 &opening.Shape1,
                                                                 &opening.ShapeChannels,
                                                                 &opening.PictureEditor,
                                                                 &opening.LabelFileSize,
                                                                 &opening.PictureMapViewer,
                                                                 &opening.PictureRenameMorph,
                                                                 &opening.PictureMatColor,
                                                                 &opening.PictureMatHiLite,
                                                                 &opening.ListPropObj,
                                                                 &opening.LabelOpenSource,
                                                                 &opening.LabelOpenSourceTitle,
                                                                 &opening.PictureCopyToDest,
                                                                 &opening.PictureViewChannels,
                                                                 &opening.PictureJoints,
                                                                 &opening.PictureTrash,
                                                                 &opening.LabelMainOBJPath,
                                                                 &opening.TextMainOBJ,
                                                                 &opening.LabelPropOBJs,
                                                                 &opening.LabelMainTex,
                                                                 &opening.TextMainTex,
                                                                 &opening.LabelMainBump,
                                                                 &opening.TextMainBump,
                                                                 &opening.LabelMainTrans,
                                                                 &opening.TextMainTrans,
                                                                 &opening.LabelMainReflect,
                                                                 &opening.TextMainReflect,
                                                                 &opening.LabelFileName,
                                                                 &opening.LabelMaterials,
                                                                 &opening.ListMaterials,
                                                                 &opening.LabelChannelFileName,
                                                                 &opening.ListActors,
                                                                 &opening.LabelBodyParts,
                                                                 &opening.ListChannels,
                                                                 &opening.ImageSplash,
                                                                 &opening.PictureEMC,
                                                                 &opening.PictureChangeRatio,
                                                                 &opening.TextForceLimits,
                                                                 &opening.ListTwistRemove,
                                                                 &opening.ListTwistRestore};
  for (front::Control* control : figureControls) control->hide();
  opening.LabelOBJFileName.setCaption(path);
  opening.LabelOBJFileName.show();
  opening.PictureScaleObj.show();
  opening.PictureMash.show();
  opening.PictureOBJView.show();
}

}  // namespace norvik::figure
