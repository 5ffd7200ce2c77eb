// The text buffer against a string. Steering: EDITS|WORD|WITH, where EDITS is a run of "i", "d",
// "r", "u", "y" and "x" (put in, take out, replace all, undo, redo, put the text behind itself),
// each behind the number of its place.

#include "input.h"
#include "text/long/brackets.h"
#include "text/long/long_text_edits.h"
#include "text/long/long_text_search.h"

#include <algorithm>

namespace {

using norvik::fuzz::Input;
using norvik::fuzz::numberIn;
using norvik::fuzz::require;
using norvik::fuzz::requireEqual;
using norvik::text::LongText;
using norvik::text::LongTextEdits;
using norvik::text::TextSearch;

constexpr std::size_t kMostBytes = std::size_t{1} << 18U;

std::vector<std::size_t> lineStarts(const std::string& bytes) {
  std::vector<std::size_t> starts{0};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const bool pair = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
    if (bytes[i] == '\n' || (bytes[i] == '\r' && !pair)) starts.push_back(i + 1);
  }
  return starts;
}

void compare(const LongText& text, const std::string& plain, std::size_t place) {
  requireEqual(text.string(), plain, "the text");
  const std::vector<std::size_t> starts = lineStarts(plain);
  require(text.lineCount() == starts.size(), "the number of lines");
  const std::size_t at = plain.empty() ? 0 : place % (plain.size() + 1);
  const auto behind = std::upper_bound(starts.begin(), starts.end(), at);
  const auto line = static_cast<std::size_t>(behind - starts.begin()) - 1;
  require(text.lineOf(at) == line, "the line of a place");
  require(text.lineStart(line) == starts[line], "the start of a line");
  const auto lines = text.lines(line, 2);
  require(lines.front().start == starts[line], "the start in a list of lines");
  require(lines.front().end == text.lineEnd(line), "the end in a list of lines");
}

std::string plainlyReplaced(const std::string& plain, const std::string& word,
                            const std::string& with) {
  std::string made;
  std::size_t done = 0;
  while (!word.empty()) {
    const std::size_t hit = plain.find(word, done);
    if (hit == std::string::npos) break;
    made += plain.substr(done, hit - done) + with;
    done = hit + word.size();
  }
  return made + plain.substr(done);
}

/// The bracket that belongs to another, found by counting in a string.
void compareBrackets(const LongText& text, const std::string& plain, std::size_t place) {
  const auto found = norvik::text::matchingBracket(text, place);
  if (!found) return;
  require(*found != place && *found < plain.size(), "the place of a bracket");
  const auto back = norvik::text::matchingBracket(text, *found);
  require(back.has_value() && *back == place, "the way back from a bracket");
}

class Run {
 public:
  explicit Run(const Input& input)
      : pieces_(input.pieces(3)), plain_(input.text), text_(input.text), edits_(text_) {}

  void steps() {
    const std::string& all = pieces_[0];
    std::size_t at = 0;
    while (at < all.size() && plain_.size() < kMostBytes) {
      const std::size_t letter = all.find_first_not_of("0123456789", at);
      if (letter == std::string::npos) break;
      const std::size_t place = numberIn(all.substr(at, letter - at), 0, kMostBytes);
      step(all[letter], plain_.empty() ? 0 : place % (plain_.size() + 1));
      compare(text_, plain_, place);
      compareBrackets(text_, plain_, place);
      at = letter + 1;
    }
  }

 private:
  void step(char kind, std::size_t at) {
    switch (kind) {
      case 'i':
        change(at, 0, pieces_[2]);
        break;
      case 'd':
        change(at, pieces_[1].size() + 1, {});
        break;
      case 'x':
        change(at, 0, std::string{plain_});
        break;
      case 'r': {
        const TextSearch search(pieces_[1], {false, true});
        auto made = norvik::text::replaceAll(text_, search, pieces_[2]);
        plain_ = plainlyReplaced(plain_, pieces_[1], pieces_[2]);
        edits_.setAll(std::move(made.text));
        break;
      }
      case 'u':
        edits_.undo();
        plain_ = text_.string();
        break;
      case 'y':
        edits_.redo();
        plain_ = text_.string();
        break;
      default:
        break;
    }
  }

  void change(std::size_t at, std::size_t length, const std::string& bytes) {
    plain_.replace(at, std::min(length, plain_.size() - at), bytes);
    edits_.replace(at, length, bytes, length == 0 && bytes.size() == 1);
  }

  std::vector<std::string> pieces_;
  std::string plain_;
  LongText text_;
  LongTextEdits edits_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Input input(data, size);
  Run(input).steps();

  // All taken back is the text that was there.
  LongText text(input.text);
  LongTextEdits edits(text);
  edits.replace(input.text.size() / 2, 3, input.steering);
  edits.replace(0, input.steering.size(), "\n", true);
  while (edits.undo()) {
  }
  requireEqual(text.string(), input.text, "the text taken back");
  return 0;
}
