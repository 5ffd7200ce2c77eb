#include "figure/line_ending_repair.h"

#include "text/columns.h"
#include "text/line_scan.h"

#include <algorithm>

namespace norvik::figure {

namespace {

constexpr std::size_t kRepairBlock = 2048;

/// The text carried from block to block, consumed from its front.
class Carry {
 public:
  void append(std::string_view block) {
    text_.erase(0, begin_);
    searched_ -= begin_;
    begin_ = 0;
    text_ += block;
  }

  /// Prints the lines that can be told by now.
  void print(text::LineWriter& scratch) {
    text::visitEach(
        text_, searched_, [&](std::size_t lf) { printAtFeed(lf, scratch); }, '\n');
    if (rest().size() <= 1) {
      searched_ = begin_;
    } else {
      // No LF is left.
      searched_ = std::max(searched_, begin_);
      printAtReturns(scratch);
    }
  }

 private:
  std::string_view rest() const { return std::string_view{text_}.substr(begin_); }

  void printAtFeed(std::size_t lf, text::LineWriter& scratch) {
    // Passed over behind another LF, or left as the only character.
    if (lf < begin_ || rest().size() <= 1) return;
    const auto line = std::string_view{text_}.substr(begin_, lf - begin_);
    scratch.line(line.ends_with('\r') ? text::withoutLast(line, 1) : line);
    begin_ = lf + 1;
    if (rest().starts_with('\n')) ++begin_;
  }

  void printAtReturns(text::LineWriter& scratch) {
    for (auto cr = text_.find('\r', searched_); cr != std::string::npos;
         cr = text_.find('\r', begin_)) {
      scratch.line(std::string_view{text_}.substr(begin_, cr - begin_));
      begin_ = cr + 1;
    }
    searched_ = text_.size();
  }

  std::string text_;
  std::size_t begin_ = 0;
  std::size_t searched_ = 0;  ///< in front of this stands no line end that is not consumed
};

}  // namespace

void LineEndingRepair(text::ByteReader& source, text::LineWriter& scratch) {
  Carry carry;
  for (auto block = source.read(kRepairBlock); !block.empty(); block = source.read(kRepairBlock)) {
    carry.append(block);
    carry.print(scratch);
  }
}

}  // namespace norvik::figure
