#pragma once
// Writing beside other work.

#include "text/host.h"

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>

namespace norvik::text {

/// Writes blocks of a file on a thread of its own, one after the other, while the caller makes the
/// next one. Nobody else may touch the file between the first write() and finish(). The file must
/// outlive the writer, which waits for its last block when it dies.
class BackgroundWriter {
 public:
  explicit BackgroundWriter(HostFile& file) : file_(file) {}
  BackgroundWriter(const BackgroundWriter&) = delete;
  BackgroundWriter& operator=(const BackgroundWriter&) = delete;
  ~BackgroundWriter();

  /// Takes a block over and leaves an empty text in its place. It waits for the block before, and
  /// returns the host's error of any block that has failed so far; then nothing is written any
  /// more.
  int write(std::uint64_t offset, std::string& block);

  /// Waits until all is written; the host's error, if any.
  int finish();

 private:
  void work();
  int put(std::uint64_t offset, const std::string& block);

  HostFile& file_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::string block_;
  std::uint64_t offset_ = 0;
  bool waiting_ = false;  ///< a block is there that is not written yet
  bool ending_ = false;
  int error_ = 0;
  std::thread thread_;
};

}  // namespace norvik::text
