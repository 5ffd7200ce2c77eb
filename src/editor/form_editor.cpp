#include "editor/form_editor.h"

#include <array>

namespace norvik::editor {

namespace {

constexpr float kFormWidth = 12000;  // twips
constexpr float kFormHeight = 9000;
constexpr float kFontPoints = 8.25F;

// The panes, in pixels.
constexpr float kMargin = 8;
constexpr float kPanesWidth = 784;
constexpr float kHalf = (kPanesWidth - kMargin) / 2;
constexpr front::Box kLeftPane{kMargin, 96, kPanesWidth, 464};
constexpr front::Box kRightPaneAway{kMargin + kPanesWidth, 96, 0, 464};

struct Place {
  std::string_view control;
  front::Box box;
};

constexpr auto kPlaces = std::to_array<Place>({
    {"RichTextBox1", kLeftPane},
    {"RichTextBox2", kRightPaneAway},
    {"LabelSecFile", {404, 8, 388, 16}},
    {"LabelFileSizeEd1", {8, 568, 160, 16}},
    {"LabelFileSizeEd2", {404, 568, 160, 16}},
    {"LabelLineNum", {96, 32, 64, 16}},
    {"LabelLineNumLabel", {8, 32, 80, 16}},
    {"TextLineNum", {168, 32, 64, 20}},
    {"CommandGotoLineNum", {240, 32, 80, 20}},
    {"LabelLoadTime", {176, 568, 200, 16}},
    {"ComboFind", {56, 64, 160, 20}},
    {"LabelFind", {8, 64, 48, 16}},
    {"LabelReplace", {224, 64, 80, 16}},
    {"TextReplace", {312, 64, 160, 20}},
    {"CheckMatchCase", {480, 64, 96, 20}},
    {"CheckWholeWord", {584, 64, 96, 20}},
    {"ListMRU", {404, 96, 388, 160}},
    {"OptionNewFile", {336, 32, 80, 20}},
    {"PictureFind", {8, 4, 24, 24}},
    {"PictureReplace", {40, 4, 24, 24}},
    {"PictureSave", {72, 4, 24, 24}},
    {"PicturePrint", {104, 4, 24, 24}},
    {"PictureSecFile", {136, 4, 24, 24}},
});

}  // namespace

FormEditor::FormEditor() : Form("FormEditor", "Editor") {
  ListMRU.setTip("Click for left  pane, shift/click for right");
  OptionNewFile.setTip("Click this to open a new blank file in the right pane.");
  restoreStart();
  static_cast<void>(takeChanges());
}

void FormEditor::dropTexts() {
  RichTextBox1.reset();
  RichTextBox2.reset();
}

void FormEditor::restoreStart() {
  setCaption("Editor");
  setBox({0, 0, kFormWidth, kFormHeight});
  setFontSize(kFontPoints);
  ScaleX = 1;
  ScaleY = 1;
  LeftDirty = false;
  RightDirty = false;
  dropTexts();
  for (const Place& place : kPlaces) find(place.control)->setBox(place.box);
  for (front::Control* control : controls()) {
    control->setFontSize(kFontPoints);
    control->setFore(front::kBlack);
    control->show();
  }
  RichTextBox1.setBack(kUnchanged);
  RichTextBox2.setBack(kUnchanged);
  for (front::Label* label : {&LabelSecFile, &LabelFileSizeEd1, &LabelFileSizeEd2, &LabelLineNum}) {
    label->setCaption({});
  }
  LabelLoadTime.setCaption("Load Time ");
  ComboFind.clear();
  for (front::TextBox* box :
       {static_cast<front::TextBox*>(&ComboFind), &TextReplace, &TextLineNum}) {
    box->setText({});
    box->setCaret(0, 0);
  }
  CheckMatchCase.setValue(false);
  CheckWholeWord.setValue(false);
  OptionNewFile.setValue(false);
  ListMRU.clear();
  for (front::Timer* timer : {&TimerLoadTime, &Timer1, &Timer2}) timer->stop();
  for (front::Control* control :
       {static_cast<front::Control*>(&LabelFileSizeEd1),
        static_cast<front::Control*>(&LabelFileSizeEd2),
        static_cast<front::Control*>(&LabelLoadTime), static_cast<front::Control*>(&ComboFind),
        static_cast<front::Control*>(&LabelFind), static_cast<front::Control*>(&LabelReplace),
        static_cast<front::Control*>(&TextReplace), static_cast<front::Control*>(&CheckMatchCase),
        static_cast<front::Control*>(&CheckWholeWord), static_cast<front::Control*>(&ListMRU)}) {
    control->hide();
  }
  CommonDialogOpen.setFileName({});
  CommonDialog1.setFileName({});
  setFocus(RichTextBox1);
}

void halvePanes(FormEditor& form) {
  form.RichTextBox1.setWidth(kHalf * form.ScaleX);
  form.RichTextBox2.setLeft((kMargin + kHalf + kMargin) * form.ScaleX);
  form.RichTextBox2.setWidth(kHalf * form.ScaleX);
}

}  // namespace norvik::editor
