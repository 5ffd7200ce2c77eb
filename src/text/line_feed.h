#pragma once
// The lines of a host file one after the other, with their places.

#include "text/host.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::text {

/// Reads forward. A line ends at CR LF, LF or CR, or with the file. A file that is not there, or
/// that breaks off, has no further lines.
class LineFeed {
 public:
  LineFeed(HostOps& host, const std::string& name, std::uint64_t from = 0);

  /// Moves to the next line; false at the end.
  bool next();
  /// The line without its end, good until the next call. Of a long one the first 64 KB.
  std::string_view line() const { return line_; }
  /// Where it begins, and where the next one does, in bytes from the start of the file.
  std::uint64_t offset() const { return offset_; }
  std::uint64_t end() const { return end_; }
  /// A number for the whole line; lines that differ have another, but for one in 2^64.
  std::uint64_t hash() const { return hash_; }

 private:
  bool fill();
  void take(std::string_view bytes);

  std::unique_ptr<HostFile> file_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t size_ = 0;
  std::string line_;
  std::uint64_t offset_ = 0;
  std::uint64_t end_ = 0;
  std::uint64_t hash_ = 0;
};

}  // namespace norvik::text
