#pragma once
// The few operations that the disk asks of the host system. Everything that touches a host file
// goes through here, so that a test can stand between and let any one of them fail.
//
// Names are host paths. Operations return 0 or the host's error number (errno); they never throw.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::text {

/// The bytes that passes read and write at a time: large enough to make system calls rare, small
/// enough to stay in a core's own cache between the read and the write.
inline constexpr std::size_t kBlockSize = std::size_t{256} * 1024;

/// What the host knows of a name, links followed.
struct HostStatus {
  enum class Kind { missing, file, folder, other };
  Kind kind = Kind::missing;
  std::uint64_t size = 0;
  unsigned mode = 0;  ///< permission bits
  unsigned owner = 0;
  unsigned group = 0;
  // Two names with the same numbers are one file's; 0 where the host does not tell.
  std::uint64_t medium = 0;
  std::uint64_t serial = 0;
  std::uint64_t names = 1;  ///< how many names the file has
};

/// An open host file. Closing happens with the object.
class HostFile {
 public:
  virtual ~HostFile() = default;
  /// Reads up to `size` bytes at the file's position; `got` is 0 at the end of the file.
  virtual int read(char* into, std::size_t size, std::size_t& got) = 0;
  /// Writes all bytes at the file's position, or fails; some may then have been written.
  virtual int write(std::string_view bytes) = 0;
  /// Moves the position to a byte offset from the start; beyond the end is allowed.
  virtual int seek(std::uint64_t offset) = 0;
  /// The bytes in the file at this time.
  virtual int size(std::uint64_t& bytes) = 0;
  /// Returns when the written bytes are on the medium.
  virtual int sync() = 0;
};

enum class HostOpenMode {
  read,       ///< an existing file
  write,      ///< made if missing, emptied if not
  append,     ///< made if missing, writes go to the end
  update,     ///< made if missing, read and written anywhere
  createNew,  ///< for writing; fails with EEXIST if the name exists
};

class HostOps {
 public:
  virtual ~HostOps() = default;
  virtual int open(const std::string& name, HostOpenMode mode, std::unique_ptr<HostFile>& file) = 0;
  /// The status of a name; a missing one is no error.
  virtual int status(const std::string& name, HostStatus& status) = 0;
  /// The names in a folder, in no order, without "." and "..".
  virtual int list(const std::string& folder, std::vector<std::string>& names) = 0;
  /// What a symbolic link says; EINVAL for a name that is none.
  virtual int readLink(const std::string& name, std::string& target) = 0;
  /// Renames a file over `to`, which may exist, in one step.
  virtual int renameOver(const std::string& from, const std::string& to) = 0;
  /// Renames, and fails with EEXIST if `to` exists.
  virtual int renameNew(const std::string& from, const std::string& to) = 0;
  virtual int remove(const std::string& name) = 0;
  /// Gives a file a further name on the same file system; fails with EEXIST if that exists.
  virtual int link(const std::string& file, const std::string& name) = 0;
  /// Makes a new file that shares the bytes of another one until either changes; fails where the
  /// file system knows no such thing, and with EEXIST if the name exists.
  virtual int clone(const std::string& file, const std::string& name) = 0;
  virtual int makeFolder(const std::string& name) = 0;
  /// Removes an empty folder.
  virtual int removeFolder(const std::string& name) = 0;
  virtual int setMode(const std::string& name, unsigned mode) = 0;
  virtual int setOwner(const std::string& name, unsigned owner, unsigned group) = 0;
  /// Returns when the folder's entries are on the medium.
  virtual int syncFolder(const std::string& folder) = 0;
};

/// The operations of the system that the program runs on.
std::unique_ptr<HostOps> makePosixHost();

}  // namespace norvik::text
