#include "editor/caret.h"

#include "editor/load_pane.h"
#include "text/columns.h"
#include "text/number_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace norvik::editor {

namespace {

/// Without "Ctrl+" and the like.
std::string_view bareKey(std::string_view key) {
  for (bool more = true; more;) {
    more = false;
    for (const std::string_view held : {"Ctrl+", "Shift+", "Alt+"}) {
      if (key.size() > held.size() && key.starts_with(held)) {
        key.remove_prefix(held.size());
        more = true;
      }
    }
  }
  return key;
}

bool isLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

void showLine(FormEditor& form, Side side) {
  const front::TextPane& page = form.page(side);
  const bool left = side == Side::left;
  form.LabelLineNum.setCaption(std::to_string(page.content().lineOf(page.caret()) + 1));
  form.LabelLineNum.setFore(left ? front::kBlack : kRightPane);
  form.TextLineNum.setFore(left ? front::kBlack : kRightPane);
  form.sizeLabel(side).show();
  form.sizeLabel(left ? Side::right : Side::left).hide();
}

/// The caret stands one byte in front of the line, so that a find meets a hit at its start.
void goToLine(FormEditor& form) {
  front::TextPane& page =
      form.page(form.TextLineNum.fore() == kRightPane ? Side::right : Side::left);
  form.setFocus(page);
  const double line = std::nearbyint(text::value(form.TextLineNum.text()));
  constexpr double kMost = 2147483647;
  if (line < 1 || line > kMost) return;
  const std::int64_t start = GetCharFromLine(page, static_cast<std::int64_t>(line));
  if (start > 0) page.setCaret(static_cast<std::size_t>(start) - 1, 0);
}

void wirePane(FormEditor& form, Side side) {
  front::TextPane& page = form.page(side);
  page.key.add([&form, side](const std::string& key) {
    if (marksTyping(key)) form.dirty(side) = true;
    showLine(form, side);
  });
  page.released.add([&form, side](front::Mouse) { showLine(form, side); });
  page.caretMoved.add([&form, side] { showLine(form, side); });
  page.changed.add([&form, side] { notePaneChange(form, side); });
  front::Timer& timer = form.focusTimer(side);
  timer.expired.add([&form, &timer, &page] {
    timer.stop();
    form.setFocus(page);
  });
}

}  // namespace

std::int64_t GetCharFromLine(const front::TextPane& page, std::int64_t line) {
  if (line < 1 || static_cast<std::uint64_t>(line) > page.content().lineCount()) return -1;
  return static_cast<std::int64_t>(page.content().lineStart(static_cast<std::size_t>(line) - 1));
}

bool marksTyping(std::string_view key) {
  const std::string_view bare = bareKey(key);
  if (bare.size() == 1) return isLetter(bare.front());
  constexpr auto kKeys =
      std::to_array<std::string_view>({"Enter", "Space", "Delete", "Backspace", "Tab"});
  return bare.starts_with("Num") || std::find(kKeys.begin(), kKeys.end(), bare) != kKeys.end();
}

bool isFindAgain(std::string_view key) {
  return bareKey(key) == "F3";
}

void wireCaret(FormEditor& form) {
  wirePane(form, Side::left);
  wirePane(form, Side::right);
  form.CommandGotoLineNum.clicked.add([&form] { goToLine(form); });
  form.TextLineNum.key.add([&form](const std::string& key) {
    if (key != "Enter") return;
    goToLine(form);
    form.TextLineNum.setText({});
  });
  form.TimerLoadTime.expired.add([&form] {
    form.LabelLoadTime.hide();
    form.TimerLoadTime.stop();
  });
}

}  // namespace norvik::editor
