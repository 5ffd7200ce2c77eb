#pragma once
// Reading a file of fixed-length records here and there.

#include "text/disk.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::text {

/// Reads records by their numbers, from 1, in any order, and keeps what it has read near them: a
/// mesh names its vertices over and over, and those of one place together. What is written to the
/// file meanwhile may go unseen. The file is made if it is missing.
class RecordReader {
 public:
  RecordReader(Disk& disk, std::string_view path, std::size_t recordLength);

  /// A record with its filling, good until the next call; an empty text for a number without a
  /// record, and the rest of the file for one that the file ends in the middle of.
  std::string_view get(std::uint64_t number);

 private:
  struct Block {
    std::uint64_t number = 0;  ///< from 1; 0: nothing is kept
    std::string bytes;
  };
  const Block& blockOf(std::uint64_t number);

  std::string path_;
  std::unique_ptr<HostFile> file_;
  std::size_t recordLength_;
  std::uint64_t recordsInBlock_;
  std::vector<Block> blocks_;
};

}  // namespace norvik::text
