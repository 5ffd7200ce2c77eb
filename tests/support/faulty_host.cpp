#include "support/faulty_host.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace norvik::tests {

using text::HostFile;
using text::HostOpenMode;
using text::HostStatus;

class FaultyHost::File final : public HostFile {
 public:
  File(FaultyHost& host, FileId id, std::unique_ptr<HostFile> real)
      : host_(host), id_(std::move(id)), real_(std::move(real)) {}

  int read(char* into, std::size_t size, std::size_t& got) override {
    got = 0;
    return host_.perform([&] { return real_->read(into, size, got); });
  }

  int write(std::string_view bytes) override {
    const bool metBefore = host_.met_;
    int error = host_.count();
    host_.changes_.push_back(host_.operations_);
    ++host_.writes_;
    if (host_.fault_ == Fault::fullDisk && host_.writes_ >= host_.at_) {
      host_.met_ = true;
      error = ENOSPC;
    }
    if (error == 0 || host_.fault_ == Fault::unheard) {
      const int written = real_->write(bytes);
      return error != 0 ? error : written;
    }
    const bool half =
        !metBefore && (host_.fault_ == Fault::fullDisk || host_.fault_ == Fault::killed);
    if (half) static_cast<void>(real_->write(bytes.substr(0, bytes.size() / 2)));
    return error;
  }

  int seek(std::uint64_t offset) override {
    return host_.perform([&] { return real_->seek(offset); });
  }
  int size(std::uint64_t& bytes) override {
    return host_.perform([&] { return real_->size(bytes); });
  }
  int sync() override {
    return host_.change([this] {
      host_.synced(id_);
      return 0;
    });
  }

 private:
  FaultyHost& host_;
  FileId id_;
  std::unique_ptr<HostFile> real_;
};

/// Counts an operation and carries it out, if it is to be.
template <typename Operation>
int FaultyHost::perform(Operation&& operation) {
  const int error = count();
  if (error != 0 && fault_ != Fault::unheard) return error;
  const int result = operation();
  return error != 0 ? error : result;
}

template <typename Operation>
int FaultyHost::change(Operation&& operation) {
  changes_.push_back(operations_ + 1);
  return perform(std::forward<Operation>(operation));
}

FaultyHost::~FaultyHost() {
  forgetFiles();
}

void FaultyHost::setFault(Fault fault, std::uint64_t n, int error) {
  fault_ = fault;
  at_ = n;
  error_ = error;
  met_ = false;
  operations_ = 0;
  writes_ = 0;
  changes_.clear();
  forgetFiles();
}

/// Counts an operation. The error that it is to fail with; 0 if it is to be carried out.
int FaultyHost::count() {
  ++operations_;
  const bool now = operations_ == at_;
  switch (fault_) {
    case Fault::none:
    case Fault::fullDisk:
      return 0;
    case Fault::error:
    case Fault::unheard:
      if (!now) return 0;
      met_ = true;
      return error_;
    case Fault::powerLost:
      if (now) losePower();
      break;
    case Fault::killed:
      break;
  }
  if (operations_ < at_) return 0;
  met_ = true;
  return EIO;
}

void FaultyHost::losePower() {
  for (const auto& [file, unsynced] : unsynced_) {
    static_cast<void>(::ftruncate(unsynced.descriptor, static_cast<off_t>(unsynced.syncedLength)) ==
                      0);
  }
}

/// Remembers a file that is open for writing; its first `length` bytes are on the medium. The
/// descriptor also keeps its number from being given to another file.
void FaultyHost::watch(const std::string& name, const FileId& file, std::uint64_t length) {
  if (const auto known = unsynced_.find(file); known != unsynced_.end()) {
    known->second.syncedLength = std::min(known->second.syncedLength, length);
    return;
  }
  const int descriptor = ::open(name.c_str(), O_WRONLY | O_CLOEXEC);
  if (descriptor >= 0) unsynced_[file] = {descriptor, length};
}

void FaultyHost::synced(const FileId& file) {
  const auto known = unsynced_.find(file);
  if (known == unsynced_.end()) return;
  struct stat status {};
  if (::fstat(known->second.descriptor, &status) != 0) return;
  known->second.syncedLength = static_cast<std::uint64_t>(status.st_size);
}

void FaultyHost::forgetFiles() {
  for (const auto& [file, unsynced] : unsynced_) ::close(unsynced.descriptor);
  unsynced_.clear();
}

FaultyHost::FileId FaultyHost::idOf(const std::string& name) {
  struct stat status {};
  if (::stat(name.c_str(), &status) != 0) return {};
  return {status.st_dev, status.st_ino};
}

bool FaultyHost::acrossFolders(const std::string& from, const std::string& to) const {
  const auto folder = [](const std::string& name) { return name.substr(0, name.rfind('/')); };
  return foldersSeparate_ && folder(from) != folder(to);
}

int FaultyHost::open(const std::string& name, HostOpenMode mode, std::unique_ptr<HostFile>& file) {
  if (mode != HostOpenMode::read) changes_.push_back(operations_ + 1);
  return perform([&] {
    struct stat before {};
    const bool existed = ::stat(name.c_str(), &before) == 0;
    std::unique_ptr<HostFile> real;
    if (const int error = real_.open(name, mode, real); error != 0) return error;
    const FileId id = idOf(name);
    if (mode != HostOpenMode::read) {
      const bool kept = existed && mode != HostOpenMode::write;
      watch(name, id, kept ? static_cast<std::uint64_t>(before.st_size) : 0);
    }
    file = std::make_unique<File>(*this, id, std::move(real));
    return 0;
  });
}

int FaultyHost::status(const std::string& name, HostStatus& status) {
  return perform([&] { return real_.status(name, status); });
}
int FaultyHost::list(const std::string& folder, std::vector<std::string>& names) {
  return perform([&] { return real_.list(folder, names); });
}
int FaultyHost::readLink(const std::string& name, std::string& target) {
  return perform([&] { return real_.readLink(name, target); });
}
int FaultyHost::renameOver(const std::string& from, const std::string& to) {
  return change([&] { return acrossFolders(from, to) ? EXDEV : real_.renameOver(from, to); });
}
int FaultyHost::renameNew(const std::string& from, const std::string& to) {
  return change([&] { return acrossFolders(from, to) ? EXDEV : real_.renameNew(from, to); });
}
int FaultyHost::remove(const std::string& name) {
  return change([&] { return real_.remove(name); });
}
int FaultyHost::link(const std::string& file, const std::string& name) {
  return change([&] { return acrossFolders(file, name) ? EXDEV : real_.link(file, name); });
}
int FaultyHost::clone(const std::string& file, const std::string& name) {
  return change([&] { return acrossFolders(file, name) ? EXDEV : real_.clone(file, name); });
}
int FaultyHost::removeFolder(const std::string& name) {
  return change([&] { return real_.removeFolder(name); });
}
int FaultyHost::makeFolder(const std::string& name) {
  return change([&] { return real_.makeFolder(name); });
}
int FaultyHost::setMode(const std::string& name, unsigned mode) {
  return change([&] { return real_.setMode(name, mode); });
}
int FaultyHost::setOwner(const std::string& name, unsigned owner, unsigned group) {
  return change([&] { return real_.setOwner(name, owner, group); });
}
int FaultyHost::syncFolder(const std::string&) {
  return change([] { return 0; });
}

}  // namespace norvik::tests
