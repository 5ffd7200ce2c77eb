#include "editor/manual_editor.h"

#include "editor/caret.h"
#include "editor/find.h"
#include "editor/open_editor.h"
#include "editor/save_pane.h"
#include "editor/second_file.h"
#include "front/help_boxes.h"

#include <array>

namespace norvik::editor {

namespace {

constexpr std::array kHelpBoxes = std::to_array<front::HelpBox>({
    {"PictureSecFile", "Info", "Click this to open a second file at the same time."},
    {"PictureFind", "Info", "Use this to find text, F3 to find again."},
    {"PictureReplace", "Information", "Click this to find and replace text."},
    {"PictureSave", "Info", "Click this to save the file at any point."},
    {"PicturePrint", "Info", "Click this to print the selected text, or all of the file."},
});

}  // namespace

void wireManualEditor(front::Session& session, FormEditor& form) {
  front::hangHelpBoxes(session, form, kHelpBoxes);
  wireOpenEditor(session, form);
  wireSecondFile(session, form);
  wireFind(session, form);
  wireCaret(form);
  wireSavePane(session, form);
}

}  // namespace norvik::editor
