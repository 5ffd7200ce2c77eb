#include "front/form_obj.h"

#include <array>
#include <string_view>

namespace norvik::front {

namespace {

struct Place {
  std::string_view name;
  Box box;
};

// The views lie on one another: a tool shows the one that it works on.
constexpr std::array kPlaces = std::to_array<Place>({
    {"PictureObjViewer2", {12, 12, 600, 600}},
    {"PictureOBJViewer", {12, 12, 600, 600}},
    {"PictureNoDX", {12, 12, 600, 600}},
    {"PictureStore", {12, 12, 600, 600}},
    {"PictureStore2", {12, 12, 600, 600}},
    {"PictureStore3", {12, 12, 600, 600}},
    {"PictureUVMap", {22, 22, 580, 580}},
    {"PictureSecMap", {22, 22, 580, 580}},
    {"PictureZoom", {12, 12, 600, 600}},
    {"PictureAddObjFront", {12, 12, 600, 600}},
    {"PictureAddObjSide", {12, 12, 600, 600}},
    {"PictureAddObjTop", {12, 12, 600, 600}},
    {"ImageBoss", {12, 12, 600, 600}},
    {"ImageRDS", {628, 12, 384, 600}},
    {"ImageSaveMap", {22, 22, 580, 580}},
    {"LabelView", {628, 12, 80, 24}},
    {"PictureNewFile", {716, 8, 32, 32}},
    {"Frame1", {628, 48, 120, 92}},
    {"OptionFrontView", {638, 66, 100, 20}},
    {"OptionSideView", {638, 88, 100, 20}},
    {"OptionTopView", {638, 110, 100, 20}},
    {"Frame2", {756, 48, 124, 92}},
    {"OptionNoColors", {766, 66, 104, 20}},
    {"OptionColorGroups", {766, 88, 104, 20}},
    {"OptionColorMaterials", {766, 110, 104, 20}},
    {"Frame3", {888, 48, 124, 92}},
    {"OptionShowPolys", {898, 66, 104, 20}},
    {"OptionShowPoints", {898, 88, 104, 20}},
    {"CheckHiddenFaces", {898, 110, 104, 20}},
    {"OptionAlphabetize", {898, 110, 104, 20}},
    {"LabelHotKeys", {760, 12, 80, 24}},
    {"ListHotKeys", {848, 12, 164, 180}},
    {"LabelWait", {212, 300, 200, 24}},
    {"LabelPlay", {12, 624, 80, 24}},
    {"LabelBoss", {100, 624, 100, 24}},
    {"CommandListGroups", {628, 152, 188, 28}},
    {"CommandListMats", {824, 152, 188, 28}},
    {"ListGroups", {628, 212, 188, 320}},
    {"ListMaterials", {824, 212, 188, 320}},
    {"ListGroupColors", {628, 212, 188, 320}},
    {"ListMATColors", {824, 212, 188, 320}},
    {"RichTextBoxGroups", {628, 212, 188, 320}},
    {"RichTextBoxMaterials", {824, 212, 188, 320}},
    {"LabelRichRename", {628, 188, 100, 20}},
    {"ListGrpRen", {628, 212, 188, 320}},
    {"ListMatRen", {824, 212, 188, 320}},
    {"TextGrpRename", {628, 538, 188, 24}},
    {"TextMatRename", {824, 538, 188, 24}},
    {"CheckSaveGroups", {628, 568, 188, 20}},
    {"CheckSaveMaterials", {824, 568, 188, 20}},
    {"ListGroupsSave", {628, 212, 188, 320}},
    {"ListMaterialsSave", {824, 212, 188, 320}},
    {"LabelMakeUV", {12, 656, 90, 24}},
    {"LabelUVMap", {110, 656, 90, 24}},
    {"LabelSecMap", {208, 656, 110, 24}},
    {"LabelSaveMap", {326, 656, 90, 24}},
    {"LabelViewCR2TexMap", {424, 656, 90, 24}},
    {"LabelApplyMap", {522, 656, 90, 24}},
    {"TextMapSize", {326, 686, 120, 24}},
    {"TextMapSizeSec", {208, 686, 110, 24}},
    {"LabelMirror", {208, 624, 80, 24}},
    {"PictureAddOBJ", {296, 620, 32, 32}},
    {"PictureMerge", {334, 620, 32, 32}},
    {"PictureLop", {372, 620, 32, 32}},
    {"PicturePhiLopper", {410, 620, 32, 32}},
    {"ListLop", {628, 212, 188, 320}},
    {"PictureMagGlass", {448, 620, 32, 32}},
    {"TextNotes", {628, 624, 384, 132}},
    {"LabelBiggestX", {628, 600, 120, 16}},
    {"LabelSmallestX", {756, 600, 120, 16}},
    {"LabelBiggestY", {884, 600, 120, 16}},
});

}  // namespace

void layOut(FormOBJ& form) {
  for (const Place& place : kPlaces) {
    if (Control* control = form.find(place.name)) control->setBox(place.box);
  }
}

}  // namespace norvik::front
