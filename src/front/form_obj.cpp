#include "front/form_obj.h"

#include <cmath>
#include <initializer_list>
#include <string_view>

namespace norvik::front {

namespace {

constexpr std::string_view kCaption = "OBJ Viewer";
constexpr float kFormWidth = 15360;  // twips
constexpr float kFormHeight = 11520;

void clearLists(FormOBJ& form) {
  for (Control* control : form.controls()) {
    if (auto* list = dynamic_cast<ListBox*>(control)) list->clear();
    if (auto* text = dynamic_cast<TextBox*>(control)) text->setText({});
  }
  for (const char* line :
       {"ESC:show/hide drawing", "R: refresh OBJ", "Space: start/stop rotate", "Numpad /: zoom out",
        "Numpad *: zoom in", "Numpad +: move up", "Numpad -: move down", "Numpad 9: speed up",
        "Numpad 3: slow down!", "Right click to hide"}) {
    form.ListHotKeys.add(line);
  }
}

void setCaptions(FormOBJ& form) {
  form.setCaption(kCaption);
  form.LabelPlay.setCaption("PLAY");
  form.LabelBoss.setCaption("Boss Button");
  for (Label* label : {&form.LabelBiggestX, &form.LabelSmallestX, &form.LabelBiggestY}) {
    label->setCaption({});
  }
}

void setOptions(FormOBJ& form) {
  form.OptionFrontView.setValue(true);
  form.OptionNoColors.setValue(true);
  form.OptionShowPolys.setValue(true);
  form.OptionAlphabetize.setValue(true);
  for (CheckBox* box : {&form.CheckHiddenFaces, &form.CheckSaveGroups, &form.CheckSaveMaterials}) {
    box->setValue(false);
  }
}

void showStart(FormOBJ& form) {
  for (Control* control : form.controls()) {
    control->hide();
    control->setEnabled(true);
  }
  for (Control* control : std::initializer_list<Control*>{&form.PictureObjViewer2,
                                                          &form.LabelView,
                                                          &form.PictureNewFile,
                                                          &form.Frame1,
                                                          &form.OptionFrontView,
                                                          &form.OptionSideView,
                                                          &form.OptionTopView,
                                                          &form.Frame2,
                                                          &form.OptionNoColors,
                                                          &form.OptionColorGroups,
                                                          &form.OptionColorMaterials,
                                                          &form.Frame3,
                                                          &form.OptionShowPolys,
                                                          &form.OptionShowPoints,
                                                          &form.LabelHotKeys,
                                                          &form.LabelPlay,
                                                          &form.LabelBoss,
                                                          &form.CommandListGroups,
                                                          &form.CommandListMats,
                                                          &form.PictureMagGlass}) {
    control->show();
  }
  form.CommandListGroups.setEnabled(false);
  form.CommandListMats.setEnabled(false);
}

}  // namespace

FormOBJ::FormOBJ() : Form("FormOBJ", kCaption) {
  restoreStart();
  static_cast<void>(takeChanges());
}

void FormOBJ::restoreStart() {
  ReadParamObj = false;
  ReadAgain = false;
  AddMode = false;
  RenamesPending = false;
  Mark.reset();
  GroupsAsRead.clear();
  MaterialsAsRead.clear();
  LopOn = false;
  TurnFacesRound = false;
  MapDrawn = 0;
  MapSaved = 0;
  setState(WindowState::normal);
  setBox({0, 0, kFormWidth, kFormHeight});
  layOut(*this);
  clearLists(*this);
  setCaptions(*this);
  setOptions(*this);
  showStart(*this);
}

void FormOBJ::makeSurfaces() {
  for (Control* control : controls()) {
    auto* picture = dynamic_cast<PictureBox*>(control);
    if (picture == nullptr) continue;
    picture->resize(static_cast<int>(std::lround(picture->box().width)),
                    static_cast<int>(std::lround(picture->box().height)));
  }
}

void FormOBJ::dropSurfaces() {
  for (Control* control : controls()) {
    if (auto* picture = dynamic_cast<PictureBox*>(control)) {
      picture->surface() = graphics::Surface(0, 0);
    }
  }
}

}  // namespace norvik::front
