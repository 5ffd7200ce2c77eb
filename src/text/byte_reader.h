#pragma once
// Reads a file as bytes, whatever they are.

#include "text/disk.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::text {

/// A forward reader of bytes in blocks of any size, on top of large reads of the file.
class ByteReader {
 public:
  /// Throws what Disk::openForReading throws.
  ByteReader(const Disk& disk, std::string_view path);

  /// Up to `count` bytes; fewer at the end of the file, none behind it. Good until the next call.
  std::string_view read(std::size_t count);

  /// As many whole blocks of `count` bytes as are at hand, one at the least; what is left at the
  /// end of the file, nothing behind it. Good until the next call.
  std::string_view readBlocks(std::size_t count);

 private:
  /// Has `count` bytes at hand, or all that the file still has.
  void provide(std::size_t count);
  std::string_view take(std::size_t count);

  std::string path_;
  std::unique_ptr<HostFile> file_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

}  // namespace norvik::text
