#pragma once
// Files that are written beside the caller's work.

#include "text/background_writer.h"

#include <memory>
#include <string>

namespace norvik::text {

/// Up to this size a file is written at once: a thread costs more than it brings.
inline constexpr std::uint64_t kWrittenAtOnce = std::uint64_t{8} << 20U;

/// A host file whose large writes behind the first few megabytes go on while the caller makes the
/// next ones. An error of such a write comes up with a later operation, at the latest with size()
/// or sync(), and stays; who closes a file without either does not hear of it.
class WrittenBehind final : public HostFile {
 public:
  explicit WrittenBehind(std::unique_ptr<HostFile> file) : file_(std::move(file)) {}

  int read(char* into, std::size_t size, std::size_t& got) override;
  int write(std::string_view bytes) override;
  int seek(std::uint64_t offset) override;
  int size(std::uint64_t& bytes) override;
  int sync() override;

 private:
  int settle();
  int seekHere();

  std::unique_ptr<HostFile> file_;
  std::uint64_t position_ = 0;
  bool seeked_ = false;  ///< the file's own position is not this one
  std::string block_;
  std::unique_ptr<BackgroundWriter> writer_;
};

}  // namespace norvik::text
