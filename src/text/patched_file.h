#pragma once
// Single bytes of a file, changed where they stand.

#include "text/disk.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace norvik::text {

/// A file of which single bytes are looked at and overwritten. A byte is changed by one write of
/// the host, so that at every instant the file has the old or the new one.
class PatchedFile {
 public:
  /// Throws what Disk::openForUpdating throws.
  PatchedFile(Disk& disk, std::string_view path);

  /// The byte at an offset from 0. Throws FileError inputPastEnd (62) behind the file's end.
  char at(std::uint64_t offset);
  void put(std::uint64_t offset, char byte);

 private:
  std::string path_;
  std::unique_ptr<HostFile> file_;
};

}  // namespace norvik::text
