#include "text/written_behind.h"

namespace norvik::text {

namespace {

/// Smaller writes are done as soon as handed over.
constexpr std::size_t kSmallest = std::size_t{64} << 10U;

}  // namespace

/// All that was written is in the file.
int WrittenBehind::settle() {
  return writer_ == nullptr ? 0 : writer_->finish();
}

int WrittenBehind::seekHere() {
  if (!seeked_) return 0;
  const int error = file_->seek(position_);
  seeked_ = error != 0;
  return error;
}

int WrittenBehind::read(char* into, std::size_t size, std::size_t& got) {
  got = 0;
  if (const int error = settle(); error != 0) return error;
  if (const int error = seekHere(); error != 0) return error;
  const int error = file_->read(into, size, got);
  position_ += got;
  return error;
}

int WrittenBehind::write(std::string_view bytes) {
  if (bytes.size() < kSmallest || position_ < kWrittenAtOnce) {
    if (const int error = settle(); error != 0) return error;
    if (const int error = seekHere(); error != 0) return error;
    const int error = file_->write(bytes);
    position_ += bytes.size();
    return error;
  }
  if (writer_ == nullptr) writer_ = std::make_unique<BackgroundWriter>(*file_);
  block_.assign(bytes);
  const int error = writer_->write(position_, block_);
  position_ += bytes.size();
  seeked_ = true;
  return error;
}

int WrittenBehind::seek(std::uint64_t offset) {
  seeked_ = seeked_ || offset != position_;
  position_ = offset;
  return 0;
}

int WrittenBehind::size(std::uint64_t& bytes) {
  const int error = settle();
  return error != 0 ? error : file_->size(bytes);
}

int WrittenBehind::sync() {
  const int error = settle();
  return error != 0 ? error : file_->sync();
}

}  // namespace norvik::text
