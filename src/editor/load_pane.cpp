#include "editor/load_pane.h"

#include "editor/text_file.h"
#include "figure/caption.h"
#include "text/columns.h"
#include "text/number_text.h"

#include <utility>

namespace norvik::editor {

namespace {

constexpr int kSecondsOfMinute = 60;
constexpr int kSecondsOfHour = 3600;

/// The minutes and seconds on both sides of the last colon, as seconds of the hour.
int secondOfHour(std::string_view time) {
  const std::size_t colon = time.rfind(':');
  if (colon == std::string_view::npos) return 0;
  const auto number = [](std::string_view digits) {
    return static_cast<int>(text::value(digits)) % kSecondsOfMinute;
  };
  return number(text::rightmost(time.substr(0, colon), 2)) * kSecondsOfMinute +
         number(time.substr(colon + 1));
}

void showLoadTime(FormEditor& form, int seconds) {
  front::Label& label = form.LabelLoadTime;
  if (seconds == 0) {
    label.setCaption("Load Time  <1 Second");
  } else {
    label.setCaption(label.caption() + std::to_string(seconds) + " Seconds");
  }
  label.show();
  form.TimerLoadTime.start();
}

}  // namespace

int secondsBetween(std::string_view before, std::string_view after) {
  const int seconds = secondOfHour(after) - secondOfHour(before);
  return seconds < 0 ? seconds + kSecondsOfHour : seconds;
}

void setPane(FormEditor& form, Side side, text::LongText content) {
  form.page(side).setContent(std::move(content));
  form.page(side).setBack(kUnchanged);
  form.dirty(side) = false;
  form.focusTimer(side).start();
}

void loadPane(front::Session& session, FormEditor& form, Side side, const std::string& path) {
  const std::string before = session.front.now();
  text::LongText content = readText(session.disk, path);
  const std::string after = session.front.now();
  setPane(form, side, std::move(content));
  showLoadTime(form, secondsBetween(before, after));
  form.sizeLabel(side == Side::left ? Side::right : Side::left).hide();
  form.sizeLabel(side).setCaption(figure::sizeInBytes(session.disk, path));
  form.sizeLabel(side).show();
}

void notePaneChange(FormEditor& form, Side side) {
  form.page(side).setBack(front::kWhite);
  form.focusTimer(side).start();
}

}  // namespace norvik::editor
