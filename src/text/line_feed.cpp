#include "text/line_feed.h"

#include "text/line_scan.h"

#include <algorithm>
#include <cstring>

namespace norvik::text {

namespace {

constexpr std::size_t kMostShown = std::size_t{64} * 1024;

/// Mixes eight bytes at a time into a number.
std::uint64_t mixed(std::uint64_t hash, std::string_view bytes) {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15ULL;
  constexpr unsigned kShift = 29;
  while (!bytes.empty()) {
    std::uint64_t word = 0;
    const std::size_t count = std::min(bytes.size(), sizeof word);
    std::memcpy(&word, bytes.data(), count);
    hash = (hash ^ word ^ (std::uint64_t{count} << 56U)) * kFactor;
    hash ^= hash >> kShift;
    bytes.remove_prefix(count);
  }
  return hash;
}

}  // namespace

LineFeed::LineFeed(HostOps& host, const std::string& name, std::uint64_t from)
    : buffer_(kBlockSize), offset_(from), end_(from) {
  const bool open = host.open(name, HostOpenMode::read, file_) == 0;
  if (open && from != 0 && file_->seek(from) != 0) file_.reset();
}

/// Has bytes at hand; false at the end of the file.
bool LineFeed::fill() {
  if (begin_ < size_) return true;
  begin_ = 0;
  size_ = 0;
  if (file_ != nullptr && file_->read(buffer_.data(), buffer_.size(), size_) != 0) size_ = 0;
  if (size_ == 0) file_.reset();
  return size_ > 0;
}

void LineFeed::take(std::string_view bytes) {
  line_.append(bytes.substr(0, kMostShown - std::min(kMostShown, line_.size())));
  hash_ = mixed(hash_, bytes);
  begin_ += bytes.size();
  end_ += bytes.size();
}

bool LineFeed::next() {
  line_.clear();
  hash_ = 1;
  offset_ = end_;
  if (!fill()) return false;
  while (fill()) {
    const std::string_view rest(buffer_.data() + begin_, size_ - begin_);
    const auto at = std::min(rest.find_first_of("\r\n"), rest.size());
    take(rest.substr(0, at));
    if (at == rest.size()) continue;
    const bool cr = rest[at] == '\r';
    ++begin_;
    ++end_;
    if (cr && fill() && buffer_[begin_] == '\n') {
      ++begin_;
      ++end_;
    }
    break;
  }
  return true;
}

}  // namespace norvik::text
