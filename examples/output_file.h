#pragma once

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace norvik::examples {

// The one failure that the makers know: a file that cannot be written. what() is the whole message.
class WriteError : public std::runtime_error {
 public:
  WriteError(const std::filesystem::path& path, int errorNumber);
};

// A file in the making. It takes its name only in finish(); until then, and after any failure,
// whatever stood under the name stays as it was. Devices and pipes are written directly.
class OutputFile {
 public:
  explicit OutputFile(const std::filesystem::path& path);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile();

  void put(std::string_view bytes) {
    if (bytes.size() > buffer_.size() - used_) {
      putSlowly(bytes);
      return;
    }
    std::memcpy(buffer_.data() + used_, bytes.data(), bytes.size());
    used_ += bytes.size();
  }

  [[nodiscard]] std::uint64_t size() const { return written_ + used_; }
  void finish();

 private:
  void putSlowly(std::string_view bytes);
  void flush();
  [[noreturn]] void fail();

  std::filesystem::path target_;
  std::filesystem::path scratch_;
  bool isDirect_;
  bool isFinished_ = false;
  std::ofstream stream_;
  std::vector<char> buffer_;
  std::size_t used_ = 0;
  std::uint64_t written_ = 0;
};

}  // namespace norvik::examples
