#include "text/host.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#if __has_include(<linux/fs.h>)
#include <linux/fs.h>
#endif

namespace norvik::text {

namespace {

constexpr mode_t kNewFileMode = 0666;    // the user's mask takes from it
constexpr mode_t kNewFolderMode = 0777;  // the same
constexpr unsigned kPermissionBits = 07777;

int errorOf(int result) {
  return result < 0 ? errno : 0;
}

class PosixFile final : public HostFile {
 public:
  explicit PosixFile(int descriptor) : descriptor_(descriptor) {}
  PosixFile(const PosixFile&) = delete;
  PosixFile& operator=(const PosixFile&) = delete;
  ~PosixFile() override { ::close(descriptor_); }

  int read(char* into, std::size_t size, std::size_t& got) override {
    got = 0;
    ssize_t count = 0;
    do {
      count = ::read(descriptor_, into, size);
    } while (count < 0 && errno == EINTR);
    if (count < 0) return errno;
    got = static_cast<std::size_t>(count);
    return 0;
  }

  int write(std::string_view bytes) override {
    // For a longer write the host looks for as long a stretch of free memory to keep it in. On a
    // busy machine that takes several times the time of the copy.
    constexpr std::size_t kLongest = std::size_t{128} * 1024;
    while (!bytes.empty()) {
      const ssize_t count = ::write(descriptor_, bytes.data(), std::min(bytes.size(), kLongest));
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return errno;
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
  }

  int seek(std::uint64_t offset) override {
    return ::lseek(descriptor_, static_cast<off_t>(offset), SEEK_SET) < 0 ? errno : 0;
  }

  int size(std::uint64_t& bytes) override {
    struct stat status {};
    if (::fstat(descriptor_, &status) < 0) return errno;
    bytes = static_cast<std::uint64_t>(status.st_size);
    return 0;
  }

  int sync() override { return errorOf(::fsync(descriptor_)); }

#ifdef FICLONE
  int shareBytesOf(const PosixFile& other) {
    return errorOf(::ioctl(descriptor_, FICLONE, other.descriptor_));
  }
#endif

 private:
  int descriptor_;
};

int openFlags(HostOpenMode mode) {
  switch (mode) {
    case HostOpenMode::read:
      return O_RDONLY;
    case HostOpenMode::write:
      return O_WRONLY | O_CREAT | O_TRUNC;
    case HostOpenMode::append:
      return O_WRONLY | O_CREAT | O_APPEND;
    case HostOpenMode::update:
      return O_RDWR | O_CREAT;
    case HostOpenMode::createNew:
      return O_WRONLY | O_CREAT | O_EXCL;
  }
  return O_RDONLY;
}

int openAs(const std::string& name, int flags, std::unique_ptr<PosixFile>& file) {
  // Not to wait for the other end of a pipe: O_NONBLOCK means nothing to a file.
  const int descriptor = ::open(name.c_str(), flags | O_CLOEXEC | O_NONBLOCK, kNewFileMode);
  if (descriptor < 0) return errno;
  file = std::make_unique<PosixFile>(descriptor);
  return 0;
}

class PosixHost final : public HostOps {
 public:
  int open(const std::string& name, HostOpenMode mode, std::unique_ptr<HostFile>& file) override {
    std::unique_ptr<PosixFile> opened;
    const int error = openAs(name, openFlags(mode), opened);
    file = std::move(opened);
    return error;
  }

  int status(const std::string& name, HostStatus& status) override {
    struct stat found {};
    status = {};
    if (::stat(name.c_str(), &found) < 0) {
      return errno == ENOENT || errno == ENOTDIR ? 0 : errno;
    }
    status.kind = S_ISREG(found.st_mode)   ? HostStatus::Kind::file
                  : S_ISDIR(found.st_mode) ? HostStatus::Kind::folder
                                           : HostStatus::Kind::other;
    status.size = static_cast<std::uint64_t>(found.st_size);
    status.mode = found.st_mode & kPermissionBits;
    status.owner = found.st_uid;
    status.group = found.st_gid;
    status.medium = found.st_dev;
    status.serial = found.st_ino;
    status.names = found.st_nlink;
    return 0;
  }

  int list(const std::string& folder, std::vector<std::string>& names) override {
    names.clear();
    DIR* stream = ::opendir(folder.c_str());
    if (stream == nullptr) return errno;
    errno = 0;
    while (const dirent* entry = ::readdir(stream)) {
      std::string name = static_cast<const char*>(entry->d_name);
      if (name != "." && name != "..") names.push_back(std::move(name));
    }
    const int error = errno;
    ::closedir(stream);
    return error;
  }

  int readLink(const std::string& name, std::string& target) override {
    std::array<char, PATH_MAX> buffer{};
    const ssize_t length = ::readlink(name.c_str(), buffer.data(), buffer.size());
    if (length < 0) return errno;
    target.assign(buffer.data(), static_cast<std::size_t>(length));
    return 0;
  }

  int renameOver(const std::string& from, const std::string& to) override {
    return errorOf(::rename(from.c_str(), to.c_str()));
  }

  int renameNew(const std::string& from, const std::string& to) override {
#ifdef RENAME_NOREPLACE
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return errno;
#endif
    // A file system without that call: look first.
    struct stat found {};
    if (::lstat(to.c_str(), &found) == 0) return EEXIST;
    return renameOver(from, to);
  }

  int remove(const std::string& name) override {
    return errorOf(::unlink(name.c_str()));
  }

  int link(const std::string& file, const std::string& name) override {
    return errorOf(::link(file.c_str(), name.c_str()));
  }

  int clone(const std::string& file, const std::string& name) override {
#ifdef FICLONE
    std::unique_ptr<PosixFile> from;
    std::unique_ptr<PosixFile> to;
    if (const int error = openAs(file, O_RDONLY, from); error != 0) return error;
    if (const int error = openAs(name, O_WRONLY | O_CREAT | O_EXCL, to); error != 0) return error;
    const int error = to->shareBytesOf(*from);
    if (error != 0) ::unlink(name.c_str());
    return error;
#else
    static_cast<void>(file);
    static_cast<void>(name);
    return ENOTSUP;
#endif
  }

  int makeFolder(const std::string& name) override {
    return errorOf(::mkdir(name.c_str(), kNewFolderMode));
  }

  int removeFolder(const std::string& name) override {
    return errorOf(::rmdir(name.c_str()));
  }

  int setMode(const std::string& name, unsigned mode) override {
    return errorOf(::chmod(name.c_str(), mode));
  }

  int setOwner(const std::string& name, unsigned owner, unsigned group) override {
    return errorOf(::chown(name.c_str(), owner, group));
  }

  int syncFolder(const std::string& folder) override {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return errno;
    const int error = errorOf(::fsync(descriptor));
    ::close(descriptor);
    return error;
  }
};

}  // namespace

std::unique_ptr<HostOps> makePosixHost() {
  return std::make_unique<PosixHost>();
}

}  // namespace norvik::text
