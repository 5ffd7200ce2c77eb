#include "failing_host.h"

#include <cerrno>
#include <utility>

namespace norvik::fuzz {

template <typename Operation>
int FailingHost::perform(Operation&& operation) {
  ++operations_;
  return dead() ? EIO : operation();
}

class FailingHost::File final : public text::HostFile {
 public:
  File(FailingHost& host, std::unique_ptr<text::HostFile> real)
      : host_(host), real_(std::move(real)) {}

  int read(char* into, std::size_t size, std::size_t& got) override {
    return host_.perform([&] { return real_->read(into, size, got); });
  }
  int write(std::string_view bytes) override {
    const bool alive = !host_.dead();
    const int error = host_.perform([&] { return real_->write(bytes); });
    if (alive && host_.dead()) real_->write(bytes.substr(0, bytes.size() / 2));
    return error;
  }
  int seek(std::uint64_t offset) override {
    return host_.perform([&] { return real_->seek(offset); });
  }
  int size(std::uint64_t& bytes) override {
    return host_.perform([&] { return real_->size(bytes); });
  }
  int sync() override {
    return host_.perform([&] { return real_->sync(); });
  }

 private:
  FailingHost& host_;
  std::unique_ptr<text::HostFile> real_;
};

int FailingHost::open(const std::string& name, text::HostOpenMode mode,
                      std::unique_ptr<text::HostFile>& file) {
  return perform([&] {
    std::unique_ptr<text::HostFile> real;
    const int error = real_.open(name, mode, real);
    if (error == 0) file = std::make_unique<File>(*this, std::move(real));
    return error;
  });
}

int FailingHost::status(const std::string& name, text::HostStatus& status) {
  return perform([&] { return real_.status(name, status); });
}

int FailingHost::list(const std::string& folder, std::vector<std::string>& names) {
  return perform([&] { return real_.list(folder, names); });
}

int FailingHost::readLink(const std::string& name, std::string& target) {
  return perform([&] { return real_.readLink(name, target); });
}

int FailingHost::renameOver(const std::string& from, const std::string& to) {
  return perform([&] { return real_.renameOver(from, to); });
}

int FailingHost::renameNew(const std::string& from, const std::string& to) {
  return perform([&] { return real_.renameNew(from, to); });
}

int FailingHost::remove(const std::string& name) {
  return perform([&] { return real_.remove(name); });
}

int FailingHost::link(const std::string& file, const std::string& name) {
  return perform([&] { return real_.link(file, name); });
}

int FailingHost::clone(const std::string& file, const std::string& name) {
  return perform([&] { return real_.clone(file, name); });
}

int FailingHost::removeFolder(const std::string& name) {
  return perform([&] { return real_.removeFolder(name); });
}

int FailingHost::makeFolder(const std::string& name) {
  return perform([&] { return real_.makeFolder(name); });
}

int FailingHost::setMode(const std::string& name, unsigned mode) {
  return perform([&] { return real_.setMode(name, mode); });
}

int FailingHost::setOwner(const std::string& name, unsigned owner, unsigned group) {
  return perform([&] { return real_.setOwner(name, owner, group); });
}

int FailingHost::syncFolder(const std::string& folder) {
  return perform([&] { return real_.syncFolder(folder); });
}

}  // namespace norvik::fuzz
