#pragma once
// Numbers as figure files and list entries write them, and back.

#include <cstdint>
#include <string>
#include <string_view>

namespace norvik::text {

/// A single-precision number as text: up to seven significant digits, no zero before the point, a
/// leading blank in the sign column unless it is negative, exponent form ("1.234E-05") when the
/// decimal exponent is below -4 or above 6. Negative zero is " 0".
std::string numberText(float number);

/// A whole number as text with all its digits, with the sign column.
std::string wholeNumberText(std::int64_t number);

/// The leading number of a text; blanks and tabs are skipped wherever they stand, reading stops at
/// the first character that cannot belong to a number. 0 if there is none. Beyond the range of a
/// double the result is infinite.
double value(std::string_view text);

/// A count of lines as the lists show it. It is kept in single precision, so that it stands still
/// when it reaches 16777216 and is no longer exact beyond seven digits.
class LineCount {
 public:
  void add(std::uint64_t lines) { lines_ += lines; }
  LineCount& operator++() {
    ++lines_;
    return *this;
  }
  /// The count as it is.
  std::uint64_t lines() const { return lines_; }
  /// The count as a single-precision number, `offset` added.
  float asSingle(int offset = 0) const;

 private:
  std::uint64_t lines_ = 0;
};

}  // namespace norvik::text
