#include "desktop/pumping_host.h"

namespace norvik::desktop {

namespace {

constexpr std::chrono::milliseconds kBetweenPumps{100};

}  // namespace

class PumpedFile : public text::HostFile {
 public:
  PumpedFile(PumpingHost& host, std::unique_ptr<text::HostFile> file)
      : host_(host), file_(std::move(file)) {
    if (file_->size(progress_.size) != 0) progress_.size = 0;
  }

  int read(char* into, std::size_t size, std::size_t& got) override {
    const int error = file_->read(into, size, got);
    progress_.position += got;
    host_.read_ = progress_;
    host_.tick(progress_);
    if (host_.check_) host_.check_();
    return error;
  }
  int write(std::string_view bytes) override {
    const int error = file_->write(bytes);
    // What is written comes from what is read; the source says how far the pass has come.
    host_.tick(host_.read_);
    return error;
  }
  int seek(std::uint64_t offset) override {
    progress_.position = offset;
    return file_->seek(offset);
  }
  int size(std::uint64_t& bytes) override { return file_->size(bytes); }
  int sync() override { return file_->sync(); }

 private:
  PumpingHost& host_;
  std::unique_ptr<text::HostFile> file_;
  PumpingHost::Progress progress_;
};

int PumpingHost::open(const std::string& name, text::HostOpenMode mode,
                      std::unique_ptr<text::HostFile>& file) {
  const int error = host_.open(name, mode, file);
  if (error == 0) file = std::make_unique<PumpedFile>(*this, std::move(file));
  return error;
}

void PumpingHost::tick(const Progress& progress) {
  if (!pump_) return;
  const auto now = std::chrono::steady_clock::now();
  if (now - last_ < kBetweenPumps) return;
  pump_(progress);
  last_ = std::chrono::steady_clock::now();
}

}  // namespace norvik::desktop
