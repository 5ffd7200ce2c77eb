#pragma once
// The manual editor: two panes of plain text, for files that no tool covers.

#include "front/choice_controls.h"
#include "front/common_dialog.h"
#include "front/form.h"
#include "front/list_box.h"
#include "front/plain_controls.h"
#include "front/rich_text.h"
#include "front/text_controls.h"
#include "front/text_pane.h"
#include "front/timer.h"

#include <string>

namespace norvik::editor {

enum class Side { left, right };

/// The background of a pane that is not in use or whose text has not been changed; saving passes it
/// over.
inline constexpr front::Colour kUnchanged = 0x8080FF;
/// Of LabelLineNum and TextLineNum while the right pane is the current one; black for the left.
inline constexpr front::Colour kRightPane = 0xFF0000;
/// On the file name labels: the editor opens on the source.
inline constexpr front::Colour kSourceShown = 0x0000FF;
/// The title of an editor that was opened without a file.
inline constexpr std::string_view kNoFile = "Second Editing Window";

/// The title is the path of the left pane's file, LabelSecFile that of the right pane's.
class FormEditor : public front::Form {
 public:
  FormEditor();

  /// The state in which the form is shown: no text, nothing to save, the find row away.
  void restoreStart();
  /// Gives the texts' memory back.
  void dropTexts();

  /// The pane that was clicked or typed in last: where finds and jumps happen, and what is printed.
  Side current() const { return LabelLineNum.fore() == kRightPane ? Side::right : Side::left; }

  front::TextPane& page(Side side) { return side == Side::left ? RichTextBox1 : RichTextBox2; }
  front::Label& sizeLabel(Side side) {
    return side == Side::left ? LabelFileSizeEd1 : LabelFileSizeEd2;
  }
  front::Timer& focusTimer(Side side) { return side == Side::left ? Timer1 : Timer2; }
  bool& dirty(Side side) { return side == Side::left ? LeftDirty : RightDirty; }
  const std::string& path(Side side) const {
    return side == Side::left ? caption() : LabelSecFile.caption();
  }

  /// A pane was typed in since its text was loaded: the question on leaving goes by it, saving by
  /// the background.
  bool LeftDirty = false;
  bool RightDirty = false;
  float ScaleX = 1;  ///< screen to form
  float ScaleY = 1;

  front::TextPane RichTextBox1{*this, "RichTextBox1"};
  front::TextPane RichTextBox2{*this, "RichTextBox2"};
  front::Label LabelSecFile{*this, "LabelSecFile"};
  front::Label LabelFileSizeEd1{*this, "LabelFileSizeEd1"};
  front::Label LabelFileSizeEd2{*this, "LabelFileSizeEd2"};
  /// The line of the caret; its foreground tells the current pane.
  front::Label LabelLineNum{*this, "LabelLineNum"};
  front::Label LabelLineNumLabel{*this, "LabelLineNumLabel", "Line Number"};
  front::TextBox TextLineNum{*this, "TextLineNum"};
  front::CommandButton CommandGotoLineNum{*this, "CommandGotoLineNum", "Go To Line"};
  /// Its caption grows from one slow load to the next.
  front::Label LabelLoadTime{*this, "LabelLoadTime"};
  /// Hides it.
  front::Timer TimerLoadTime{*this, "TimerLoadTime", 4000};
  /// What is searched for; its list keeps what was.
  front::ComboBox ComboFind{*this, "ComboFind"};
  front::Label LabelFind{*this, "LabelFind", "Find..."};
  front::Label LabelReplace{*this, "LabelReplace", "Replace with..."};
  front::TextBox TextReplace{*this, "TextReplace"};
  front::CheckBox CheckMatchCase{*this, "CheckMatchCase", "Match Case"};
  front::CheckBox CheckWholeWord{*this, "CheckWholeWord", "Whole Word"};
  /// A copy of the main form's recent files.
  front::ListBox ListMRU{*this, "ListMRU"};
  front::OptionButton OptionNewFile{*this, "OptionNewFile", "New File"};
  front::PictureButton PictureFind{*this, "PictureFind"};
  front::PictureButton PictureReplace{*this, "PictureReplace"};
  front::PictureButton PictureSave{*this, "PictureSave"};
  front::PictureButton PicturePrint{*this, "PicturePrint"};
  front::PictureButton PictureSecFile{*this, "PictureSecFile"};
  /// Each gives the focus back to its pane after a change of its text.
  front::Timer Timer1{*this, "Timer1", 50};
  front::Timer Timer2{*this, "Timer2", 50};

  front::CommonDialog CommonDialogOpen{"FormEditor.CommonDialogOpen"};  ///< the second file
  front::CommonDialog CommonDialog1{"FormEditor.CommonDialog1"};        ///< saving a pane
};

/// Gives both panes half of the form's width.
void halvePanes(FormEditor& form);

}  // namespace norvik::editor
