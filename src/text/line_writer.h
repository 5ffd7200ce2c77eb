#pragma once
// The writer of figure text.

#include "text/copy_bytes.h"
#include "text/disk.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::text {

/// Writes a text file forward, each line ended by CR LF, through a block of memory. A failed write
/// throws FileError (diskFull on a full medium); what was written so far stands in the file. An
/// object that dies without close(), on the way out of an error, writes what it still holds, if it
/// can.
class LineWriter {
 public:
  enum class Mode { create, append };

  /// Throws what Disk::openForWriting and openForAppending throw.
  LineWriter(Disk& disk, std::string_view path, Mode mode = Mode::create);
  LineWriter(const LineWriter&) = delete;
  LineWriter& operator=(const LineWriter&) = delete;
  ~LineWriter();

  void line(std::string_view text) {
    if (text.size() + 2 > free()) return longLine(text);
    put(text);
    held_[size_] = '\r';
    held_[size_ + 1] = '\n';
    size_ += 2;
  }
  /// A line of several texts, one behind the other.
  void line(std::string_view first, std::string_view second);

  /// Bytes as they are.
  void bytes(std::string_view bytes);

  /// Whole lines with their endings: CR LF ones go through as they are, others become CR LF, and a
  /// last line without an ending gets one.
  void lines(std::string_view lines);

  /// The same, less the empty lines.
  void linesThatHoldText(std::string_view lines);

  /// Writes what is still held and closes the file.
  void close();

 private:
  void flush();
  void longLine(std::string_view text);
  std::size_t free() const { return kBlockSize - size_; }
  /// Adds bytes for which there is room.
  void put(std::string_view bytes) {
    copyBytes(bytes, held_.data() + size_);
    size_ += bytes.size();
  }

  void write(std::string_view bytes);

  std::string path_;
  std::unique_ptr<HostFile> file_;
  std::vector<char> held_;  ///< a block, of which the first `size_` bytes wait to be written
  std::size_t size_ = 0;
};

}  // namespace norvik::text
