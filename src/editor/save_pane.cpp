#include "editor/save_pane.h"

#include "editor/text_file.h"
#include "front/print_lines.h"
#include "text/line_scan.h"

#include <array>
#include <string>
#include <vector>

namespace norvik::editor {

namespace {

constexpr std::array kSides{Side::left, Side::right};

/// A save under another name does not change the pane's own.
void savePane(front::Session& session, FormEditor& form, Side side) {
  const front::DialogWords words{side == Side::left ? "Save the text of the left pane"
                                                    : "Save the text of the right pane"};
  if (!form.CommonDialog1.save(session.front, session.disk.currentFolder(), form.path(side), {},
                               words)) {
    return;
  }
  writeText(session, form.page(side).content(), form.CommonDialog1.fileName());
}

void saveChangedPanes(front::Session& session, FormEditor& form) {
  for (const Side side : kSides) {
    if (form.page(side).back() != kUnchanged) savePane(session, form, side);
  }
}

/// A line end at the very end begins no further line.
std::vector<std::string> linesOf(const std::string& content) {
  std::vector<std::string> lines;
  std::size_t at = 0;
  while (at < content.size()) {
    const std::size_t end = text::findLineEnd(content, at);
    lines.push_back(content.substr(at, end - at));
    at = end;
    if (at < content.size()) at += text::lineEndSize(content.c_str() + at);
  }
  return lines;
}

void printPane(front::Session& session, FormEditor& form) {
  const front::TextPane& page = form.page(form.current());
  const bool all = page.selectionLength() == 0;
  if (all && session.front.messageBox(
                 "There is no text selected.  Do you really want to print ALL of this file?",
                 "ALERT!", front::kYesNo) == front::Answer::no) {
    return;
  }
  front::printLines(
      session.front,
      linesOf(all ? page.text() : page.content().slice(page.caret(), page.selectionLength())));
}

void leave(front::Session& session, FormEditor& form) {
  session.hourglass(false);
  for (const Side side : kSides) offerToSave(session, form, side);
  form.dropTexts();
}

}  // namespace

void offerToSave(front::Session& session, FormEditor& form, Side side) {
  if (!form.dirty(side)) return;
  if (session.front.messageBox("Save changes?", "Note!", front::kYesNo) == front::Answer::yes) {
    savePane(session, form, side);
  }
}

void wireSavePane(front::Session& session, FormEditor& form) {
  form.PictureSave.released.add([&](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) saveChangedPanes(session, form);
  });
  form.PicturePrint.released.add([&](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) printPane(session, form);
  });
  form.unloading.add([&] { leave(session, form); });
}

}  // namespace norvik::editor
