// The line and field reads, and the passing over of lines, against their plainest form.
// Steering: READ SIZE|ACTS, an act being l (line), f (field), s (skipLines), h (handOnLines).

#include "input.h"
#include "memory_host.h"
#include "plain_text.h"
#include "text/line_reader.h"

#include <optional>

namespace {

using norvik::fuzz::PlainText;
using norvik::fuzz::require;
using norvik::fuzz::requireEqual;
namespace text = norvik::text;

const text::LineFilter& filter() {
  static const text::LineFilter tokens{text::atStart("actor"), text::anywhere("Map"),
                                       text::anywhere("\""), text::atStart(" ")};
  return tokens;
}

bool wanted(std::string_view line) {
  return line.starts_with("actor") || line.starts_with(' ') ||
         line.find("Map") != std::string_view::npos || line.find('"') != std::string_view::npos;
}

std::optional<std::string> plainRead(PlainText& in, bool line) {
  try {
    return line ? in.line() : in.field();
  } catch (int) {
    return std::nullopt;
  }
}

std::optional<std::string> realRead(text::LineReader& in, bool line) {
  try {
    return std::string{line ? in.line() : in.field()};
  } catch (const text::FileError& error) {
    require(error.number() == text::ErrorNumber::inputPastEnd, "a read fails at the end alone");
    return std::nullopt;
  }
}

/// Passes over unwanted lines and returns how many they were.
std::uint64_t pass(PlainText& in) {
  std::uint64_t passed = 0;
  while (in.atLineStart() && !in.atEnd()) {
    PlainText ahead = in;
    if (wanted(ahead.line())) break;
    in = ahead;
    ++passed;
  }
  return passed;
}

void act(char what, text::LineReader& in, PlainText& plain, const std::string& all) {
  if (what == 'l' || what == 'f') {
    const auto expected = plainRead(plain, what == 'l');
    const auto found = realRead(in, what == 'l');
    require(found.has_value() == expected.has_value(), "both reads end together");
    if (found) requireEqual(*found, *expected, "a read");
  } else if (what == 's') {
    require(in.skipLines(filter()) == pass(plain), "the lines passed over");
  } else if (what == 'h') {
    const std::size_t start = plain.position();
    std::string handed;
    in.handOnLines(filter(), [&](std::string_view lines) {
      require(!lines.empty(), "lines are handed on");
      handed += lines;
    });
    pass(plain);
    requireEqual(handed, all.substr(start, plain.position() - start), "the lines handed on");
  }
  require(in.position() == plain.position(), "the position");
  require(in.atEnd() == plain.atEnd(), "the end");
  // Where the reads stand at the end of a file is not told.
  require(in.atEnd() || in.atLineStart() == plain.atLineStart(), "the start of a line");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const norvik::fuzz::Input input(data, size);
  const auto pieces = input.pieces(2);
  norvik::fuzz::MemoryHost host;
  host.addFile("/f", input.text);
  host.limitReads(norvik::fuzz::numberIn(pieces[0], 1, text::kBlockSize));
  std::unique_ptr<text::HostFile> file;
  host.open("/f", text::HostOpenMode::read, file);

  text::LineReader in(std::move(file));
  PlainText plain(input.text);
  for (const char what : pieces[1]) act(what, in, plain, input.text);
  while (!plain.atEnd()) act('l', in, plain, input.text);
  act('l', in, plain, input.text);
  return 0;
}
