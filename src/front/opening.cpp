#include "front/opening.h"

namespace norvik::front {

namespace {

constexpr float kFormWidth = 12000;  // twips
constexpr float kFormHeight = 8700;

void setTips(Opening& opening) {
  opening.ListAllTexMaps.setTip("Rightclick to hide");
  opening.TextERCUnique.setTip("Enter a new name and hit enter.");
  opening.TextTrackingSpeed.setTip(
      "Enter a new number for the tracking speed. Hit Escape to cancel.");
  opening.CheckOBJBatch.setTip("Scales all files in the current folder.");
  opening.TextOpeningNotes.setTip("Doubleclick to close");
  opening.ListChannelsReorder.setTip("Doubleclick a channel to change the tracking speed.");
}

void fillTwistLists(Opening& opening) {
  for (ListBox* list : {&opening.ListTwistRemove, &opening.ListTwistRestore}) {
    list->add("Thigh");
    list->add("Shoulder");
    list->add("Hip (as alternate Thigh name)");
  }
}

void setColours(Opening& opening) {
  for (Label* label :
       {&opening.LabelMainOBJPath, &opening.LabelPropOBJs, &opening.LabelMainTex,
        &opening.LabelMainBump, &opening.LabelMainTrans, &opening.LabelMainReflect}) {
    label->setFore(kPathClean);
  }
  opening.ListPropObj.setFore(kListNormal);
  opening.ListChannels.setFore(kListNormal);
  opening.LabelFileName.setFore(kDestinationShown);
  opening.LabelChannelFileName.setFore(kDestinationShown);
}

}  // namespace

Opening::Opening()
    : Form("Opening", "Norvik " + std::string{kVersion}), OpeningMenus(static_cast<Form&>(*this)) {
  setBox({0, 0, kFormWidth, kFormHeight});
  for (Control* control : controls()) {
    const bool stays = control->kind() == ControlKind::menuEntry;
    control->setVisible(stays);
  }
  ImageSplash.show();
  // What nothing in the workbench fills or shows is always within reach of a script.
  for (Control* control : {static_cast<Control*>(&FileChooser), static_cast<Control*>(&FileLabel),
                           static_cast<Control*>(&NameLabel)}) {
    control->show();
  }
  MenuCR2Tools.setEnabled(false);
  setTips(*this);
  fillTwistLists(*this);
  setColours(*this);
  layOut(*this);
  static_cast<void>(takeChanges());
}

std::string Opening::inProgramFolder(std::string_view scratchName) const {
  return ProgramFolder + std::string{scratchName};
}

}  // namespace norvik::front
