#pragma once
// A text as an open file of the host.

#include "text/host.h"

#include <algorithm>
#include <string>

namespace norvik::tests {

/// A file to read from, which hands out no more than `most` bytes at a time.
class MemoryFile final : public text::HostFile {
 public:
  explicit MemoryFile(std::string bytes, std::size_t most = std::string::npos)
      : bytes_(std::move(bytes)), most_(most) {}

  int read(char* into, std::size_t size, std::size_t& got) override {
    got = bytes_.copy(into, std::min(size, most_), at_);
    at_ += got;
    return 0;
  }
  int write(std::string_view) override { return kRefused; }
  int seek(std::uint64_t) override { return kRefused; }
  int size(std::uint64_t& bytes) override {
    bytes = bytes_.size();
    return 0;
  }
  int sync() override { return kRefused; }

 private:
  static constexpr int kRefused = 1;

  std::string bytes_;
  std::size_t most_;
  std::size_t at_ = 0;
};

}  // namespace norvik::tests
