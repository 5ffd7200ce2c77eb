// The commands that look at the old versions of files and bring them back.

#include "headless/arguments.h"
#include "headless/commands.h"
#include "text/history.h"

namespace norvik::headless {

namespace {

JsonObject historyEvent(const text::HistoryEntry& entry, std::size_t index) {
  return JsonObject("history")
      .number("index", static_cast<long long>(index))
      .text("when", entry.when)
      .text("tool", entry.tool)
      .text("path", entry.path)
      .number("size", static_cast<long long>(entry.size))
      .text("what", text::lossName(entry.what));
}

}  // namespace

void Commands::addHistory() {
  const auto entries = [this] {
    text::History* const history = session_.disk.history();
    return history == nullptr ? std::vector<text::HistoryEntry>{} : history->entries();
  };
  add("history", 0, [this, entries](ScriptLine&) {
    std::size_t index = 0;
    for (const text::HistoryEntry& entry : entries()) {
      transcript_.print(historyEvent(entry, index++));
    }
  });
  add("undo", 1, [this, entries](ScriptLine& line) {
    if (session_.disk.history() == nullptr) throw Refused{"no old versions are kept"};
    const auto kept = entries();
    const int index = line.hasMore() ? wholeNumber(line.word()) : 0;
    if (kept.empty()) throw Refused{"no old version is there"};
    const int entry = within(index, 0, static_cast<int>(kept.size()) - 1);
    const text::History::Act act(session_.disk.history(), "undo");
    try {
      session_.disk.restore(kept[static_cast<std::size_t>(entry)]);
    } catch (const text::FileError& error) {
      throw Refused{std::string{error.text()}};
    }
  });
}

}  // namespace norvik::headless
