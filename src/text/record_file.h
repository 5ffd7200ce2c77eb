#pragma once
// Files of fixed-length records, addressed by number.

#include "text/disk.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace norvik::text {

/// A random-access file of records of one length, numbered from 1. A text shorter than the record
/// is filled up with blanks on the right, a longer one is cut. The file is made if it is missing.
class RecordFile {
 public:
  RecordFile(Disk& disk, std::string_view path, std::size_t recordLength);
  RecordFile(const RecordFile&) = delete;
  RecordFile& operator=(const RecordFile&) = delete;
  /// Writes what is still held, if it can; close() says whether it could.
  ~RecordFile();

  /// Writes a record. Records between the file's end and a number beyond it are zero bytes.
  void put(std::uint64_t number, std::string_view text);

  /// A record with its filling, good until the next call; inputPastEnd (62) if there is none of
  /// that number.
  std::string_view get(std::uint64_t number);

  /// The whole records in the file.
  std::uint64_t count();

  void close();

 private:
  std::uint64_t offsetOf(std::uint64_t number) const { return (number - 1) * recordLength_; }
  void flush();

  std::string path_;
  std::unique_ptr<HostFile> file_;
  std::size_t recordLength_;
  std::string held_;  ///< records put one behind the other and not yet written
  std::uint64_t heldFrom_ = 0;
  std::string record_;
};

}  // namespace norvik::text
