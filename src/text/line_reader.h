#pragma once
// The two reads of figure text over one position: whole lines and fields.

#include "text/disk.h"
#include "text/line_filter.h"
#include "text/line_scan.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::text {

/// Reads a text file forward. A line ends at CR LF, LF or CR and may be of any length; bytes are
/// handed out as they are. Memory is one block, or as much as the longest line.
///
///     LineReader in(disk, path);
///     while (!in.atEnd()) use(in.line());
///
/// The constructor throws what Disk::openForReading throws. Every read at the end of the file
/// throws FileError inputPastEnd (62). A returned text is good until the next call.
class LineReader {
 public:
  LineReader(const Disk& disk, std::string_view path);
  /// Reads from a file that is open already, from its present position.
  explicit LineReader(std::unique_ptr<HostFile> file);

  bool atEnd() { return begin_ == end_ && !refill(); }

  /// The next line without its ending, blanks and tabs intact. Behind a field read that stopped at
  /// a comma it is the rest of that line.
  std::string_view line() {
    while (ends_ == 0) {
      if (end_ - lookedTo_ <= ByteChunk::kSize) return anyLine();
      ends_ = ByteChunk(buffer_.data() + lookedTo_).matching('\r', '\n');
      lookedTo_ += ByteChunk::kSize;
    }
    const char* start = buffer_.data() + begin_;
    const char* end = buffer_.data() + lookedTo_ - ByteChunk::kSize + firstOf(ends_);
    ends_ &= ends_ - 1;
    begin_ = static_cast<std::size_t>(end - buffer_.data()) + 1;
    if (end[0] == '\r' && end[1] == '\n') {
      // The LF is the next mark, or the first byte behind the chunk.
      ends_ &= ends_ - 1;
      ++begin_;
      lookedTo_ = std::max(lookedTo_, begin_);
    }
    atLineStart_ = true;
    return {start, static_cast<std::size_t>(end - start)};
  }

  /// The next field: leading blanks and tabs are skipped, the field ends in front of a comma or a
  /// line end, which is passed over. A field that begins with a double quote runs to the closing
  /// quote (or to the end of the file), line ends included; the quotes are not part of it, and what
  /// follows the closing quote is skipped if it is blank up to a comma or line end, else it begins
  /// the next field. A blank line is an empty field.
  std::string_view field() {
    if (end_ - begin_ <= ByteChunk::kSize) return anyField();
    const char* start = buffer_.data() + begin_;
    const ByteChunk chunk(start);
    const std::uint64_t ends = chunk.matching(',', '\r', '\n');
    const std::size_t first = firstOf(~chunk.matching(' ', '\t'));
    if (ends == 0 || start[first] == '"') return anyField();
    const std::size_t end = firstOf(ends);
    begin_ += end + lineEndSize(start + end);
    forgetEnds();
    atLineStart_ = start[end] != ',';
    return {start + first, end - first};
  }

  /// Bytes from the start of the file to the next read.
  std::uint64_t position() const { return filePosition_ + begin_; }

  /// Whether the next read starts a line.
  bool atLineStart() const { return atLineStart_; }

  /// Passes over the lines that hold none of the filter's tokens, and returns how many they were.
  /// The next read is at a line that the filter accepts, or at the end of the file. When the next
  /// read does not start a line nothing is passed over.
  std::uint64_t skipLines(const LineFilter& filter);

  /// Passes over the same lines without the cost of counting them.
  void passLines(const LineFilter& filter);

  /// Passes over the same lines and hands them to `sink`: whole lines with their endings, but for
  /// one that the file ends in the middle of.
  using Sink = std::function<void(std::string_view lines)>;
  void handOnLines(const LineFilter& filter, const Sink& sink);

  /// Passes over the next `count` lines, or those that are left, and hands them to `sink` in the
  /// same way. The next read must start a line.
  void handOnNext(std::uint64_t count, const Sink& sink);

 private:
  std::string_view unread() const { return {buffer_.data() + begin_, end_ - begin_}; }
  bool refill();
  [[noreturn]] void raisePastEnd() const;
  /// Lets line() look for line ends anew: the next read or the bytes have moved.
  void forgetEnds() {
    ends_ = 0;
    lookedTo_ = begin_;
  }
  // The reads for lines and fields that are long, quoted or at the end of the bytes at hand.
  std::string_view anyLine();
  std::string_view anyField();
  std::size_t findLineEnd();
  void passLineEnd();
  void skipBlanks();
  std::string_view wholeLines();

  std::string path_;  ///< empty if the file was handed over open
  std::unique_ptr<HostFile> file_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;  ///< of the unread bytes in the buffer
  std::size_t end_ = 0;
  // Lines are shorter than a chunk as a rule: one look at a chunk tells the ends of several.
  std::uint64_t ends_ = 0;          ///< marks of the line ends in the chunk in front of lookedTo_
  std::size_t lookedTo_ = 0;        ///< how far line() has looked for line ends
  std::size_t wholeEnd_ = 0;        ///< of the last whole line; 0 until it was looked for
  std::uint64_t filePosition_ = 0;  ///< of the buffer's first byte
  bool fileEnded_ = false;
  bool atLineStart_ = true;
};

}  // namespace norvik::text
