#pragma once
// The one door to the host's files. Everything above speaks in system paths, as the figure files'
// own system has them: "C:\Poser\Runtime", drive letters, backslashes, names without regard to
// case.

#include "text/file_error.h"
#include "text/history_entry.h"
#include "text/host.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::text {

class History;

/// The drives, the current folder and the classic file operations with their classic errors:
/// a missing file is fileNotFound (53), a missing folder on the way to it, an unknown drive or a
/// network path pathNotFound (76); a folder in place of a file, an empty path, a read-only file
/// that is to be written or deleted and anything else that the host denies pathFileAccess (75); a
/// full medium diskFull (61).
class Disk {
 public:
  explicit Disk(HostOps& host);

  /// Lets a host folder stand for a drive. ".." never climbs out of it.
  void mount(char drive, std::string hostFolder);
  bool hasDrive(char drive) const;

  /// The current folder, as the path that changed it was given; doubled backslashes are dropped,
  /// and one at its end, unless it is the drive's root.
  const std::string& currentFolder() const { return currentFolder_; }
  void changeFolder(std::string_view path);

  /// Whether a file (not a folder) of that name exists. Never fails.
  bool exists(std::string_view path) const;
  bool folderExists(std::string_view path) const;
  std::uint64_t size(std::string_view path) const;
  /// Whether two paths, links followed, lead to one file. Never fails.
  bool isSameFile(std::string_view left, std::string_view right) const;
  /// The read-only attribute of a file or folder: its owner may not write it.
  bool isReadOnly(std::string_view path) const;
  void setReadOnly(std::string_view path, bool readOnly);
  /// The last name of a path as the disk spells it; empty if it is missing.
  std::string nameOnDisk(std::string_view path) const;
  /// The files that match a path whose last name may hold "*" and "?", in the order of their names
  /// without regard to case.
  std::vector<std::string> matching(std::string_view pattern) const;
  /// The names of the folders in a folder, in the same order.
  std::vector<std::string> foldersIn(std::string_view folder) const;

  void makeFolder(std::string_view path);
  /// Makes a folder and those above it; existing ones are no error.
  void makeFolders(std::string_view path);
  /// Removes a folder, which must be empty (75). The current folder can go, too.
  void removeFolder(std::string_view path);
  void remove(std::string_view path);

  /// Renames or moves a file; fails with fileAlreadyExists (58) if the new name is taken. A link is
  /// followed: its file moves, and a file moved to a link's name arrives where the link points. The
  /// file's bytes are on the medium before it gets its new name.
  void rename(std::string_view from, std::string_view to);

  /// Deletes `target`, if it exists, and renames `scratch` to it, so that at every instant the old
  /// or the new file stands complete under the name, which in the end is spelled as it is here.
  /// Links are followed; the mode and, where allowed, the owner of the old file are kept. On an
  /// error the old file stands as it was, and so does `scratch`.
  void replace(std::string_view scratch, std::string_view target);

  /// The same, and the old file stays under a further name, `backup`, which must be free (58):
  /// first it has both names, then `scratch` takes its place. The new file is not read-only, even
  /// if the old one is.
  void replaceKeeping(std::string_view scratch, std::string_view target, std::string_view backup);

  /// Copies a file, with its mode, to another name; an old file of that name stands whole until the
  /// copy takes its place, as in `replace`. A file that is to be copied onto itself is
  /// fileAlreadyOpen (55).
  void copy(std::string_view from, std::string_view to);

  /// Gives `file` the mode and owner of `model`, but for the read-only attribute. Never fails.
  void adoptIdentity(std::string_view file, std::string_view model);

  std::unique_ptr<HostFile> openForReading(std::string_view path) const;
  std::unique_ptr<HostFile> openForWriting(std::string_view path);
  std::unique_ptr<HostFile> openForAppending(std::string_view path);
  /// Read and written anywhere; made if missing.
  std::unique_ptr<HostFile> openForUpdating(std::string_view path);

  /// Has old versions kept from now on; null: no more. The history outlives the disk.
  void setHistory(History* history) { history_ = history; }
  History* history() const { return history_; }
  /// Puts an old version back where it was, read-only or not, as `replace` does; what it replaces
  /// is kept in turn.
  void restore(const HistoryEntry& entry);

  /// A path with its drive and folders: one that has none is completed by the current folder. One
  /// that no file can have stays as it is. Never fails.
  std::string inFull(std::string_view path) const;
  /// The host's name for a system path, whether it exists or not.
  std::string hostPath(std::string_view path) const;
  /// The system path of an absolute host path, on the drive whose folder holds it most closely;
  /// none if no drive does.
  std::optional<std::string> systemPath(std::string_view hostPath) const;

 private:
  struct Path {
    char drive;
    std::vector<std::string> parts;
  };
  struct Place {
    std::string name;  ///< the host's
    HostStatus status;
    bool inFolder = true;  ///< whether the folder that holds it exists
    bool exists() const { return status.kind != HostStatus::Kind::missing; }
  };

  Path parse(std::string_view path) const;
  Place locate(std::string_view path) const;
  Place locate(const Path& path) const;
  Place locateExisting(std::string_view path) const;
  Place locateFile(std::string_view path) const;
  Place locateWritable(std::string_view path) const;
  std::vector<std::string> namesIn(const Path& folder, HostStatus::Kind kind) const;
  bool areOneFile(const Place& one, const Place& other) const;
  std::unique_ptr<HostFile> open(const std::string& name, HostOpenMode mode) const;
  std::unique_ptr<HostFile> openWritable(std::string_view path, HostOpenMode mode);
  void syncFile(const std::string& name, std::string_view path) const;
  void respell(const std::string& name, std::string_view path);
  std::string fullPath(std::string_view path) const;
  void losing(Loss what, const Place& place, const std::string& name, std::string_view path,
              const std::function<void()>& step);
  void takePlace(const std::string& made, const Place& old, std::string_view target,
                 const HostStatus& identity);

  static constexpr unsigned kOwnerMayWrite = 0200;

  HostOps& host_;
  History* history_ = nullptr;
  std::map<char, std::string> drives_;
  std::string currentFolder_;
};

/// The bytes behind the last backslash of a path.
std::string_view fileTitle(std::string_view path);

}  // namespace norvik::text
