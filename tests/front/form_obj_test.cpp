// Every control of the mesh workshop: that it is there, of its kind, and how it starts.

#include "front/form_obj.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace norvik::front {
namespace {

using Names = std::vector<std::string>;

const std::map<ControlKind, Names>& inventory() {
  static const std::map<ControlKind, Names> names{
      {ControlKind::drawingSurface,
       {"PictureObjViewer2", "PictureOBJViewer", "PictureNoDX", "PictureStore", "PictureStore2",
        "PictureStore3", "PictureUVMap", "PictureSecMap", "PictureZoom", "PictureAddObjFront",
        "PictureAddObjSide", "PictureAddObjTop"}},
      {ControlKind::image, {"ImageBoss", "ImageRDS", "ImageSaveMap"}},
      {ControlKind::label,
       {"LabelView", "LabelHotKeys", "LabelWait", "LabelPlay", "LabelBoss", "LabelRichRename",
        "LabelMakeUV", "LabelUVMap", "LabelSecMap", "LabelSaveMap", "LabelViewCR2TexMap",
        "LabelApplyMap", "LabelMirror", "LabelBiggestX", "LabelSmallestX", "LabelBiggestY"}},
      {ControlKind::pictureButton,
       {"PictureNewFile", "PictureAddOBJ", "PictureMerge", "PictureLop", "PicturePhiLopper",
        "PictureMagGlass"}},
      {ControlKind::frame, {"Frame1", "Frame2", "Frame3"}},
      {ControlKind::optionButton,
       {"OptionFrontView", "OptionSideView", "OptionTopView", "OptionNoColors", "OptionColorGroups",
        "OptionColorMaterials", "OptionShowPolys", "OptionShowPoints", "OptionAlphabetize"}},
      {ControlKind::checkBox, {"CheckHiddenFaces", "CheckSaveGroups", "CheckSaveMaterials"}},
      {ControlKind::commandButton, {"CommandListGroups", "CommandListMats"}},
      {ControlKind::listBox,
       {"ListHotKeys", "ListGroups", "ListMaterials", "ListGroupColors", "ListMATColors",
        "ListGrpRen", "ListMatRen", "ListGroupsSave", "ListMaterialsSave", "ListLop"}},
      {ControlKind::richTextBox, {"RichTextBoxGroups", "RichTextBoxMaterials"}},
      {ControlKind::textBox,
       {"TextGrpRename", "TextMatRename", "TextMapSize", "TextMapSizeSec", "TextNotes"}}};
  return names;
}

const std::set<std::string>& shownAtTheStart() {
  static const std::set<std::string> names{
      "PictureObjViewer2", "LabelView",         "PictureNewFile",       "Frame1",
      "OptionFrontView",   "OptionSideView",    "OptionTopView",        "Frame2",
      "OptionNoColors",    "OptionColorGroups", "OptionColorMaterials", "Frame3",
      "OptionShowPolys",   "OptionShowPoints",  "LabelHotKeys",         "LabelPlay",
      "LabelBoss",         "CommandListGroups", "CommandListMats",      "PictureMagGlass"};
  return names;
}

void expectStart(FormOBJ& form) {
  for (const Control* control : form.controls()) {
    EXPECT_EQ(control->visible(), shownAtTheStart().contains(control->name())) << control->name();
    const bool disabled = control == &form.CommandListGroups || control == &form.CommandListMats;
    EXPECT_EQ(control->enabled(), !disabled) << control->name();
    EXPECT_GT(control->box().width, 0) << control->name();
  }
  for (const OptionButton* option : {&form.OptionFrontView, &form.OptionNoColors,
                                     &form.OptionShowPolys, &form.OptionAlphabetize}) {
    EXPECT_TRUE(option->value()) << option->name();
  }
  EXPECT_FALSE(form.ReadParamObj || form.ReadAgain || form.AddMode || form.RenamesPending);
  EXPECT_EQ(form.caption(), "OBJ Viewer");
}

TEST(FormOBJInventory, HasEveryControlOfItsKindAndNoOther) {
  const FormOBJ form;
  std::size_t known = 0;
  for (const auto& [kind, names] : inventory()) {
    known += names.size();
    for (const std::string& name : names) {
      const Control* control = form.find(name);
      ASSERT_NE(control, nullptr) << name;
      EXPECT_EQ(kindName(control->kind()), kindName(kind)) << name;
    }
  }
  EXPECT_EQ(form.controls().size(), known);
}

TEST(FormOBJInventory, StartsWithNothingReadAndTheToolsHidden) {
  FormOBJ form;
  expectStart(form);
}

TEST(FormOBJInventory, ComesBackToItsStart) {
  FormOBJ form;
  for (Control* control : form.controls()) {
    control->setVisible(!control->visible());
    control->setEnabled(!control->enabled());
    control->setBox({});
    if (auto* list = dynamic_cast<ListBox*>(control)) list->add("left over");
    if (auto* text = dynamic_cast<TextBox*>(control)) text->setText("left over");
    if (auto* check = dynamic_cast<CheckBox*>(control)) check->setValue(true);
  }
  form.OptionTopView.setValue(true);
  form.OptionColorGroups.setValue(true);
  form.OptionShowPoints.setValue(true);
  form.LabelPlay.setCaption("Mesh");
  form.setCaption("OBJ Viewer C:\\a.obj");
  form.ReadParamObj = form.ReadAgain = form.AddMode = form.RenamesPending = true;
  form.restoreStart();
  expectStart(form);
  for (const Control* control : form.controls()) {
    if (control == &form.ListHotKeys) continue;
    const auto* list = dynamic_cast<const ListBox*>(control);
    const auto* text = dynamic_cast<const TextBox*>(control);
    const auto* check = dynamic_cast<const CheckBox*>(control);
    EXPECT_TRUE(list == nullptr || list->count() == 0) << control->name();
    EXPECT_TRUE(text == nullptr || text->text().empty()) << control->name();
    EXPECT_TRUE(check == nullptr || !check->value()) << control->name();
  }
  EXPECT_EQ(form.LabelPlay.caption(), "PLAY");
}

TEST(FormOBJInventory, ListsTheHotKeys) {
  const FormOBJ form;
  EXPECT_EQ(
      form.ListHotKeys.items(),
      (Names{"ESC:show/hide drawing", "R: refresh OBJ", "Space: start/stop rotate",
             "Numpad /: zoom out", "Numpad *: zoom in", "Numpad +: move up", "Numpad -: move down",
             "Numpad 9: speed up", "Numpad 3: slow down!", "Right click to hide"}));
}

TEST(FormOBJInventory, HasPixelsOnlyWhileItNeedsThem) {
  FormOBJ form;
  const auto width = [&](const char* name) {
    return dynamic_cast<const PictureBox*>(form.find(name))->surface().width();
  };
  EXPECT_EQ(width("PictureUVMap"), 0);
  form.makeSurfaces();
  EXPECT_EQ(width("PictureUVMap"), 580);
  EXPECT_EQ(width("PictureSecMap"), 580);
  EXPECT_EQ(form.PictureUVMap.surface().height(), 580);
  EXPECT_EQ(width("PictureOBJViewer"), 600);
  EXPECT_EQ(width("PictureObjViewer2"), 600);
  form.dropSurfaces();
  EXPECT_EQ(width("PictureStore"), 0);
  EXPECT_EQ(form.PictureStore.box().width, 600);
}

TEST(FormOBJInventory, KeepsTheOptionsOfEachFrameApart) {
  FormOBJ form;
  form.OptionTopView.setValue(true);
  form.OptionColorMaterials.setValue(true);
  form.OptionShowPoints.setValue(true);
  EXPECT_TRUE(form.OptionTopView.value());
  EXPECT_TRUE(form.OptionColorMaterials.value());
  EXPECT_TRUE(form.OptionAlphabetize.value());
  EXPECT_FALSE(form.OptionFrontView.value());
  EXPECT_FALSE(form.OptionNoColors.value());
  EXPECT_FALSE(form.OptionShowPolys.value());
}

}  // namespace
}  // namespace norvik::front
