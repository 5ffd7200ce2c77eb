#include "figure/line_ending_repair.h"

#include "text/columns.h"
#include "text/line_scan.h"

#include <algorithm>

namespace norvik::figure {

namespace {

constexpr std::size_t kRepairBlock = 2048;

/// How many bytes at the front are whole blocks, none of which ends with an LF. Where such blocks
/// hold no CR either it makes no difference where one ends.
std::size_t blocksOfWholeLines(std::string_view blocks) {
  std::size_t size = 0;
  while (size + kRepairBlock <= blocks.size() && blocks[size + kRepairBlock - 1] != '\n') {
    size += kRepairBlock;
  }
  return size;
}

/// The text carried from block to block, consumed from its front.
class Carry {
 public:
  /// Prints the lines of blocks that make no difference, less the last one, which may go on. False
  /// if they do, since the carried text has an end that was not told yet.
  bool printPlain(std::string_view blocks, text::LineWriter& scratch) {
    if (rest() == "\r" || rest() == "\n") return false;
    std::size_t begin = 0;
    const std::size_t first = std::min(blocks.find('\n'), blocks.size());
    if (first < blocks.size()) {
      scratch.line(rest(), blocks.substr(0, first));
      begin_ = text_.size();
      begin = first + (blocks[first + 1] == '\n' ? 2 : 1);
      text::visitEach(
          blocks, begin,
          [&](std::size_t lf) {
            if (lf < begin) return;  // passed over behind another LF
            scratch.line(blocks.substr(begin, lf - begin));
            begin = lf + (blocks[lf + 1] == '\n' ? 2 : 1);
          },
          '\n');
    }
    append(blocks.substr(begin));
    searched_ = text_.size();
    return true;
  }

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
  for (auto blocks = source.readBlocks(kRepairBlock); !blocks.empty();
       blocks = source.readBlocks(kRepairBlock)) {
    const std::size_t returnAt = std::min(blocks.find('\r'), blocks.size());
    std::size_t at = 0;
    while (at < blocks.size()) {
      const auto plain = at < returnAt ? blocks.substr(at, returnAt - at) : std::string_view{};
      std::size_t size = blocksOfWholeLines(plain);
      if (size == 0 || !carry.printPlain(blocks.substr(at, size), scratch)) {
        size = std::min(kRepairBlock, blocks.size() - at);
        carry.append(blocks.substr(at, size));
        carry.print(scratch);
      }
      at += size;
    }
  }
}

}  // namespace norvik::figure
