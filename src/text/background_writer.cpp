#include "text/background_writer.h"

#include <system_error>

namespace norvik::text {

BackgroundWriter::~BackgroundWriter() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  changed_.notify_all();
  thread_.join();
}

int BackgroundWriter::write(std::uint64_t offset, std::string& block) {
  if (const int error = finish(); error != 0) return error;
  if (!thread_.joinable()) {
    try {
      thread_ = std::thread([this] { work(); });
    } catch (const std::system_error&) {
      // No thread is to be had: the block is written here.
      error_ = put(offset, block);
      block.clear();
      return error_;
    }
  }
  {
    const std::lock_guard lock(mutex_);
    block_.swap(block);
    offset_ = offset;
    waiting_ = true;
  }
  changed_.notify_all();
  block.clear();
  return 0;
}

int BackgroundWriter::finish() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return !waiting_; });
  return error_;
}

int BackgroundWriter::put(std::uint64_t offset, const std::string& block) {
  const int error = file_.seek(offset);
  return error != 0 ? error : file_.write(block);
}

void BackgroundWriter::work() {
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return waiting_ || ending_; });
    if (!waiting_) return;
    lock.unlock();
    const int error = put(offset_, block_);
    lock.lock();
    error_ = error;
    waiting_ = false;
    changed_.notify_all();
  }
}

}  // namespace norvik::text
