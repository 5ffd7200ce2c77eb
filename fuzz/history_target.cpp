// The text of a kept file's entry, and the comparison of two versions. Steering: nothing, or C and
// the line at which the text is cut in two versions.

#include "input.h"
#include "memory_host.h"
#include "text/file_changes.h"
#include "text/history_entry.h"
#include "text/line_feed.h"

namespace {

using namespace norvik::fuzz;
using norvik::text::Change;
using norvik::text::LineFeed;

void checkEntry(const std::string& text) {
  const auto entry = norvik::text::parseHistoryText(text);
  if (!entry) return;
  require(entry->file.find('/') == std::string::npos, "the file stays in its folder");
  const std::string written = norvik::text::historyText(*entry);
  const auto again = norvik::text::parseHistoryText(written);
  require(again.has_value(), "what is written can be read");
  requireEqual(norvik::text::historyText(*again), written, "the entry");
}

std::vector<std::string> linesOf(MemoryHost& host, const std::string& name) {
  std::vector<std::string> lines;
  LineFeed feed(host, name);
  while (feed.next()) lines.emplace_back(feed.line());
  return lines;
}

/// The lines that stay, with those that come in their places, are the other version.
void checkChanges(const std::string& text, std::size_t cut) {
  MemoryHost host;
  host.addFile("/before", text.substr(0, cut));
  host.addFile("/after", text.substr(cut));
  const auto before = linesOf(host, "/before");
  std::vector<std::string> made;
  std::uint64_t line = 0;
  const auto copyTo = [&](std::uint64_t end) {
    require(end >= line && end <= before.size(), "the changes stand in order");
    for (; line < end; ++line) made.push_back(before[line]);
  };
  const auto changes = norvik::text::compareFiles(host, "/before", "/after",
                                                  [](std::string_view) { return std::string{}; });
  for (const Change& change : changes) {
    copyTo(change.before.first);
    line += change.before.count;
    for (std::uint64_t i = 0; i < change.after.count; ++i) {
      made.push_back(norvik::text::lineOf(host, "/after", change.after, i));
    }
  }
  copyTo(before.size());
  requireEqual(made, linesOf(host, "/after"), "the new version");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Input input(data, size);
  if (input.steering.starts_with('C')) {
    checkChanges(input.text,
                 numberIn(std::string_view{input.steering}.substr(1), 0, input.text.size()));
  } else {
    checkEntry(input.text);
  }
  return 0;
}
