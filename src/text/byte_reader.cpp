#include "text/byte_reader.h"

#include "text/classic_errors.h"

#include <algorithm>
#include <cstring>

namespace norvik::text {

ByteReader::ByteReader(const Disk& disk, std::string_view path)
    : file_(disk.openForReading(path)), buffer_(kBlockSize) {}

std::string_view ByteReader::read(std::size_t count) {
  if (end_ - begin_ < count) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
    buffer_.resize(std::max(buffer_.size(), count));
    std::size_t got = 1;
    while (end_ < count && got > 0) {
      raise(file_->read(buffer_.data() + end_, buffer_.size() - end_, got));
      end_ += got;
    }
  }
  const std::string_view result(buffer_.data() + begin_, std::min(count, end_ - begin_));
  begin_ += result.size();
  return result;
}

}  // namespace norvik::text
