#pragma once
// The two reads in their plainest form: one character at a time over a text that is all there.

#include <string>
#include <string_view>
#include <vector>

namespace norvik::fuzz {

/// The number of the error that a read past the end is.
inline constexpr int kPastEnd = 62;

class PlainText {
 public:
  explicit PlainText(std::string text) : text_(std::move(text)) {}

  bool atEnd() const { return at_ == text_.size(); }
  std::size_t position() const { return at_; }
  bool atLineStart() const { return lineStart_; }

  /// Both throw kPastEnd at the end.
  std::string line();
  std::string field();

 private:
  bool ends() const { return atEnd() || text_[at_] == '\r' || text_[at_] == '\n'; }
  void passBlanks();
  void passLineEnd();

  std::string text_;
  std::size_t at_ = 0;
  bool lineStart_ = true;
};

/// All lines of a text.
std::vector<std::string> linesOf(const std::string& text);

/// The lines with CR LF endings.
std::string withLineEnds(const std::vector<std::string>& lines);

}  // namespace norvik::fuzz
