#include "front/opening.h"

#include <array>
#include <string_view>

namespace norvik::front {

namespace {

struct Place {
  std::string_view name;
  Box box;
};

constexpr std::array kPlaces = std::to_array<Place>({
    {"LabelFileName", {8, 8, 280, 16}},
    {"LabelFileSize", {292, 8, 88, 16}},
    {"LabelBodyParts", {8, 28, 180, 16}},
    {"ListActors", {8, 46, 184, 330}},
    {"LabelMaterials", {200, 28, 130, 16}},
    {"ListMaterials", {200, 46, 176, 244}},
    {"ListMATColors", {200, 46, 176, 244}},
    {"ListMatHiLite", {200, 46, 176, 244}},
    {"PictureMatColor", {200, 296, 84, 28}},
    {"PictureMatHiLite", {292, 296, 84, 28}},
    {"LabelOpenSourceTitle", {440, 8, 96, 16}},
    {"LabelOpenSource", {540, 4, 32, 32}},
    {"LabelChannelFileName", {440, 28, 348, 16}},
    {"ListChannels", {440, 46, 348, 330}},
    {"ShapeChannels", {434, 2, 360, 380}},
    {"LabelMainOBJPath", {14, 392, 110, 18}},
    {"TextMainOBJ", {128, 392, 650, 22}},
    {"LabelPropOBJs", {14, 420, 110, 18}},
    {"ListPropObj", {128, 420, 650, 44}},
    {"LabelMainTex", {14, 470, 110, 18}},
    {"TextMainTex", {128, 470, 650, 22}},
    {"LabelMainBump", {14, 498, 110, 18}},
    {"TextMainBump", {128, 498, 650, 22}},
    {"LabelMainTrans", {14, 526, 110, 18}},
    {"TextMainTrans", {128, 526, 650, 22}},
    {"LabelMainReflect", {14, 554, 110, 18}},
    {"TextMainReflect", {128, 554, 650, 22}},
    {"Shape1", {8, 386, 784, 196}},
    {"LineObj", {8, 584, 784, 1}},
    {"ListAllTexMaps", {128, 492, 650, 66}},
    {"PictureViewChannels", {384, 46, 32, 32}},
    {"PictureCopyToDest", {384, 82, 32, 32}},
    {"PictureRenameMorph", {384, 118, 32, 32}},
    {"PictureChangeRatio", {384, 154, 32, 32}},
    {"PictureEMC", {384, 190, 32, 32}},
    {"PictureJoints", {384, 226, 32, 32}},
    {"PictureTrash", {384, 262, 32, 32}},
    {"PictureEditor", {384, 298, 32, 32}},
    {"PictureMapViewer", {384, 334, 32, 32}},
    {"PictureOBJView", {384, 8, 32, 32}},
    {"PictureOBJExtract", {384, 8, 24, 32}},
    {"PictureScaleObj", {384, 82, 32, 32}},
    {"PictureMash", {384, 118, 32, 32}},
    {"PictureMirror", {384, 154, 32, 32}},
    {"PictureInstallCR2", {200, 332, 32, 32}},
    {"PictureCR2InstallCancel", {238, 332, 32, 32}},
    {"PicturePrintCR2Files", {276, 332, 32, 32}},
    {"PictureChannelReorderDone", {756, 346, 32, 32}},
    {"PictureTile", {0, 0, 64, 64}},
    {"PictureBrktsOK", {300, 180, 200, 120}},
    {"PictureBrktLeft", {300, 180, 200, 120}},
    {"PictureBrktRight", {300, 180, 200, 120}},
    {"PicturePushPin", {390, 160, 24, 24}},
    {"TextMorphRename", {440, 354, 200, 22}},
    {"OptionChannelRename", {646, 354, 70, 18}},
    {"OptionBodyPartRename", {716, 354, 76, 18}},
    {"TextERCUnique", {440, 354, 200, 22}},
    {"TextTrackingSpeed", {440, 354, 100, 22}},
    {"TextOBJScale", {420, 82, 60, 22}},
    {"SliderOBJScale", {420, 106, 200, 24}},
    {"CheckOBJBatch", {490, 82, 80, 18}},
    {"FrameMash", {420, 118, 160, 44}},
    {"OptionMashOBJ", {428, 134, 60, 18}},
    {"OptionMashMorph", {496, 134, 76, 18}},
    {"FrameExtractObj", {420, 8, 220, 36}},
    {"OptionSepObjFiles", {428, 22, 110, 18}},
    {"OptionOneObjFile", {544, 22, 90, 18}},
    {"FrameDialHiding", {200, 100, 400, 260}},
    {"ListHideDialsChannels", {208, 116, 384, 200}},
    {"CommandDialHideDone", {516, 324, 76, 26}},
    {"OptionAlphabetize", {208, 328, 120, 18}},
    {"LabelX", {384, 46, 32, 24}},
    {"LabelY", {384, 74, 32, 24}},
    {"LabelZ", {384, 102, 32, 24}},
    {"TextForceLimits", {440, 354, 200, 22}},
    {"ListTwistRemove", {440, 260, 200, 60}},
    {"ListTwistRestore", {640, 260, 148, 60}},
    {"TextOpeningNotes", {200, 100, 400, 260}},
    {"ListMRU", {8, 0, 520, 170}},
    {"ImageSplash", {0, 0, 800, 580}},
    {"ListChannelsReorder", {440, 46, 348, 330}},
    {"ListChannelsReorderByPart", {440, 46, 348, 330}},
    {"ListChannelsReorderNewOrder", {440, 46, 348, 330}},
    {"ListChannelsReorderReordered", {440, 46, 348, 330}},
    {"ListAltGeomActors", {8, 46, 184, 330}},
    {"ListAltGeomNames", {200, 46, 176, 244}},
    {"ListboxListCR2Files", {8, 46, 368, 330}},
    {"ListOBJExtract", {200, 46, 176, 244}},
    {"ListOBJBatch", {420, 136, 240, 150}},
    {"ListEMCs", {440, 46, 348, 330}},
    {"LabelFileNameForEditor", {8, 8, 776, 16}},
    {"LabelChannelFileNameForEditor", {8, 24, 776, 16}},
    {"LabelOBJFileName", {8, 8, 776, 16}},
    {"LabelSaveObjPath", {8, 56, 776, 16}},
    {"LabelNLen", {8, 72, 776, 16}},
    {"LabelTexPathCR2Install", {8, 88, 776, 16}},
    {"LabelObjPathCR2Install", {8, 104, 776, 16}},
    {"LabelRtDir", {8, 120, 776, 16}},
    {"LabelEMC", {8, 136, 776, 16}},
});

}  // namespace

void layOut(Opening& opening) {
  for (const Place& place : kPlaces) {
    if (Control* control = opening.find(place.name)) control->setBox(place.box);
  }
}

}  // namespace norvik::front
