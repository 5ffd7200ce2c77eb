#include "text/byte_reader.h"

#include "text/classic_errors.h"

#include <algorithm>
#include <cstring>

namespace norvik::text {

ByteReader::ByteReader(const Disk& disk, std::string_view path)
    : path_(disk.inFull(path)), file_(disk.openForReading(path)), buffer_(kBlockSize) {}

void ByteReader::provide(std::size_t count) {
  if (end_ - begin_ >= count) return;
  std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  buffer_.resize(std::max(buffer_.size(), count));
  std::size_t got = 1;
  while (end_ < count && got > 0) {
    const int error = file_->read(buffer_.data() + end_, buffer_.size() - end_, got);
    raise(error, path_, FileAct::reading);
    end_ += got;
  }
}

std::string_view ByteReader::take(std::size_t count) {
  const std::string_view result(buffer_.data() + begin_, count);
  begin_ += count;
  return result;
}

std::string_view ByteReader::read(std::size_t count) {
  provide(count);
  return take(std::min(count, end_ - begin_));
}

std::string_view ByteReader::readBlocks(std::size_t count) {
  provide(count);
  const std::size_t present = end_ - begin_;
  return take(present < count ? present : present - present % count);
}

}  // namespace norvik::text
