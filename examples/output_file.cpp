#include "output_file.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace norvik::examples {

namespace {

constexpr std::size_t bufferSize = std::size_t{1} << 20;

// The file behind a link, so that renaming onto it leaves the link in place.
std::filesystem::path resolved(const std::filesystem::path& path) {
  std::error_code error;
  const std::filesystem::path real = std::filesystem::weakly_canonical(path, error);
  return error ? path : real;
}

bool isDevice(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::exists(path, error) && !std::filesystem::is_regular_file(path, error);
}

std::filesystem::path scratchFor(std::filesystem::path path) {
  return path += ".part";
}

}  // namespace

WriteError::WriteError(const std::filesystem::path& path, int errorNumber)
    : std::runtime_error("cannot write " + path.string() + ": " +
                         std::generic_category().message(errorNumber)) {}

OutputFile::OutputFile(const std::filesystem::path& path)
    : target_(resolved(path)),
      scratch_(isDevice(target_) ? target_ : scratchFor(target_)),
      isDirect_(scratch_ == target_),
      buffer_(bufferSize) {
  stream_.open(scratch_, std::ios::binary | std::ios::trunc);
  if (!stream_) throw WriteError(target_, errno);
}

OutputFile::~OutputFile() {
  if (isFinished_ || isDirect_) return;
  stream_.close();
  std::error_code ignored;
  std::filesystem::remove(scratch_, ignored);
}

void OutputFile::finish() {
  flush();
  stream_.close();
  if (!stream_) fail();
  if (!isDirect_) {
    std::error_code error;
    std::filesystem::rename(scratch_, target_, error);
    if (error) throw WriteError(target_, error.value());
  }
  isFinished_ = true;
}

void OutputFile::putSlowly(std::string_view bytes) {
  while (!bytes.empty()) {
    if (used_ == buffer_.size()) flush();
    const std::size_t count = std::min(bytes.size(), buffer_.size() - used_);
    std::memcpy(buffer_.data() + used_, bytes.data(), count);
    used_ += count;
    bytes.remove_prefix(count);
  }
}

void OutputFile::flush() {
  stream_.write(buffer_.data(), static_cast<std::streamsize>(used_));
  stream_.flush();
  if (!stream_) fail();
  written_ += used_;
  used_ = 0;
}

void OutputFile::fail() {
  throw WriteError(target_, errno != 0 ? errno : EIO);
}

}  // namespace norvik::examples
