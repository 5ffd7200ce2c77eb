#pragma once
// The real host, less the flush to the medium and the finished file's taking of its name: the tools
// that a pass is held against do neither, and a file system may flush when one file takes the place
// of another.

#include "text/host.h"

namespace norvik::bench {

class UnflushedHost final : public text::HostOps {
 public:
  int open(const std::string& name, text::HostOpenMode mode,
           std::unique_ptr<text::HostFile>& file) override {
    const int error = host_->open(name, mode, file);
    if (error == 0) file = std::make_unique<File>(std::move(file));
    return error;
  }
  int status(const std::string& name, text::HostStatus& status) override {
    return host_->status(name, status);
  }
  int list(const std::string& folder, std::vector<std::string>& names) override {
    return host_->list(folder, names);
  }
  int readLink(const std::string& name, std::string& target) override {
    return host_->readLink(name, target);
  }
  int renameOver(const std::string&, const std::string&) override { return 0; }
  int renameNew(const std::string& from, const std::string& to) override {
    return host_->renameNew(from, to);
  }
  int remove(const std::string& name) override { return host_->remove(name); }
  int link(const std::string& file, const std::string& name) override {
    return host_->link(file, name);
  }
  int clone(const std::string& file, const std::string& name) override {
    return host_->clone(file, name);
  }
  int removeFolder(const std::string& name) override { return host_->removeFolder(name); }
  int makeFolder(const std::string& name) override { return host_->makeFolder(name); }
  int setMode(const std::string& name, unsigned mode) override {
    return host_->setMode(name, mode);
  }
  int setOwner(const std::string& name, unsigned owner, unsigned group) override {
    return host_->setOwner(name, owner, group);
  }
  int syncFolder(const std::string&) override { return 0; }

 private:
  class File final : public text::HostFile {
   public:
    explicit File(std::unique_ptr<text::HostFile> file) : file_(std::move(file)) {}
    int read(char* into, std::size_t size, std::size_t& got) override {
      return file_->read(into, size, got);
    }
    int write(std::string_view bytes) override { return file_->write(bytes); }
    int seek(std::uint64_t offset) override { return file_->seek(offset); }
    int size(std::uint64_t& bytes) override { return file_->size(bytes); }
    int sync() override { return 0; }

   private:
    std::unique_ptr<text::HostFile> file_;
  };

  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
};

}  // namespace norvik::bench
