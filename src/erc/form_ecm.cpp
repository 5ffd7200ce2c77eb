#include "erc/form_ecm.h"

namespace norvik::erc {

namespace {

constexpr float kFormWidth = 9000;  // twips
constexpr float kFormHeight = 7200;

}  // namespace

FormECM::FormECM() : Form("FormECM", "Enhanced Remote Control") {
  restoreStart();
  static_cast<void>(takeChanges());
}

void FormECM::restoreStart() {
  FigureNumber.clear();
  FirstFigureNumber.clear();
  MasterChannel.clear();
  SlavedChannel.clear();
  SecondChannel.clear();
  PickCount = 0;
  FileWritten = 0;
  Listing = false;
  setBox({0, 0, kFormWidth, kFormHeight});
  for (front::Control* control : controls()) {
    control->hide();
    if (auto* list = dynamic_cast<front::ListBox*>(control)) list->clear();
    if (auto* text = dynamic_cast<front::TextBox*>(control)) text->setText({});
  }
  TextPBMRatio.setTip({});
  ListControlledMorph.show();
  LabelCancel.show();
}

}  // namespace norvik::erc
