// The dial renamer held against its plainest form: every name compared with every text that stands
// for it. Steering: READ SIZE|DIRECTIONS, an "f" for each pass to friendly names and an "r" for
// each back.

#include "desk.h"
#include "dials/dial_names.h"
#include "dials/rename_pass.h"
#include "input.h"
#include "plain_text.h"

namespace {

using norvik::dials::Direction;
using norvik::fuzz::Desk;
using norvik::fuzz::requireEqual;

std::string cut(const std::string& text, std::size_t start, std::size_t count = std::string::npos) {
  return start > text.size() ? std::string{} : text.substr(start, count);
}

std::string plainFriendly(const std::string& line) {
  const std::size_t at = line.find("GetStringRes");
  if (at == std::string::npos || at == 0) return line;
  const std::string group = cut(line, at + 15, 2);
  const std::string number = cut(line, at + 17);
  std::string name;
  if (group == "28") {
    int n = 0;
    for (const std::string_view dial : norvik::dials::dialNames()) {
      const std::string digits = "," + std::to_string(++n);
      if (number.substr(0, 3) == (n < 10 ? digits + ")" : digits)) name = dial;
    }
  } else if (group == "24") {
    int n = 0;
    for (const std::string_view part : norvik::dials::partNames()) {
      const std::string digits = "," + std::to_string(++n);
      if (n < 100 ? number == digits + ")" : number.substr(0, 4) == digits) name = part;
    }
  }
  if (name.empty()) return line;
  return (at == 8 ? "\t\t\tname " : "\tname    ") + name;
}

std::string plainReverted(const std::string& line) {
  const std::size_t at = line.find("name");
  if (at == std::string::npos || at == 0) return line;
  const std::string name = cut(line, at == 1 ? 9 : at + 5);
  int n = 0;
  for (const std::string_view dial : norvik::dials::dialNames()) {
    ++n;
    if (name == dial) return "\t\t\tname GetStringRes(1028," + std::to_string(n) + ")";
  }
  n = 0;
  for (const std::string_view part : norvik::dials::partNames()) {
    ++n;
    const std::string wanted = n == 15 ? std::string{part} + '"' : std::string{part};
    if (name == wanted) return "\tname   GetStringRes(1024," + std::to_string(n) + ")";
  }
  return line;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kMostRead = 4096;
  constexpr std::size_t kMostPasses = 4;
  constexpr std::size_t kRows = 3;
  const norvik::fuzz::Input input(data, size);
  const auto pieces = input.pieces(2);
  Desk desk("cr2", input.text);
  desk.host.limitReads(norvik::fuzz::numberIn(pieces[0], 1, kMostRead));
  std::string expected = input.text;
  for (const char letter : pieces[1].substr(0, kMostPasses)) {
    const auto direction = letter == 'r' ? Direction::toGetStringRes : Direction::toFriendly;
    std::vector<std::string> lines = norvik::fuzz::linesOf(expected);
    std::uint64_t changes = 0;
    for (std::string& line : lines) {
      std::string renamed = letter == 'r' ? plainReverted(line) : plainFriendly(line);
      if (renamed != line) ++changes;
      line = std::move(renamed);
    }
    expected = norvik::fuzz::withLineEnds(lines);
    const auto preview = norvik::dials::previewOf(desk.disk, desk.path, direction, kRows);
    norvik::fuzz::require(preview.changes == changes, "the count of the preview");
    norvik::dials::renameFile(desk.disk, desk.path, direction);
    requireEqual(desk.host.bytesOf(desk.hostName), expected, "the renamed file");
  }
  return 0;
}
