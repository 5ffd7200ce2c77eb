#include "text/record_reader.h"

#include "text/classic_errors.h"

#include <algorithm>

namespace norvik::text {

namespace {

constexpr std::size_t kBlockBytes = std::size_t{16} << 10U;
constexpr std::size_t kBlocks = 256;
/// No file holds a record of such a number.
constexpr std::uint64_t kBeyondAnyFile = std::uint64_t{1} << 40U;

}  // namespace

RecordReader::RecordReader(Disk& disk, std::string_view path, std::size_t recordLength)
    : path_(disk.inFull(path)),
      file_(disk.openForUpdating(path)),
      recordLength_(recordLength),
      recordsInBlock_(std::max<std::size_t>(kBlockBytes / recordLength, 1)),
      blocks_(kBlocks) {}

const RecordReader::Block& RecordReader::blockOf(std::uint64_t number) {
  Block& block = blocks_[number % kBlocks];
  if (block.number == number) return block;
  block.number = 0;
  const std::size_t size = recordsInBlock_ * recordLength_;
  block.bytes.resize(size);
  raise(file_->seek((number - 1) * size), path_, FileAct::reading);
  std::size_t filled = 0;
  for (std::size_t got = 1; got > 0 && filled < size; filled += got) {
    raise(file_->read(block.bytes.data() + filled, size - filled, got), path_, FileAct::reading);
  }
  block.bytes.resize(filled);
  block.number = number;
  return block;
}

std::string_view RecordReader::get(std::uint64_t number) {
  if (number == 0 || number > kBeyondAnyFile) return {};
  const Block& block = blockOf((number - 1) / recordsInBlock_ + 1);
  const std::size_t at = (number - 1) % recordsInBlock_ * recordLength_;
  if (at >= block.bytes.size()) return {};
  return std::string_view{block.bytes}.substr(at, recordLength_);
}

}  // namespace norvik::text
