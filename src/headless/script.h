#pragma once
// Scripts: one command a line.

#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::headless {

/// A command line, consumed word by word.
class ScriptLine {
 public:
  ScriptLine(int number, std::string text) : number_(number), text_(std::move(text)) {}

  int number() const { return number_; }

  /// The next word; empty if there is none. Words are separated by blanks.
  std::string word();
  /// The last word, taken off the line's end; empty if there is none.
  std::string lastWord();
  /// All that is left behind exactly one blank, as it stands.
  std::string rest();
  bool hasMore() const { return text_.find_first_not_of(' ', at_) != std::string::npos; }
  int wordsLeft() const;

 private:
  int number_;
  std::string text_;
  std::size_t at_ = 0;
};

/// The lines of a script but for blank ones and those that begin with "#".
class Script {
 public:
  explicit Script(std::istream& in) : in_(in) {}
  std::optional<ScriptLine> next();

 private:
  std::istream& in_;
  int number_ = 0;
};

}  // namespace norvik::headless
