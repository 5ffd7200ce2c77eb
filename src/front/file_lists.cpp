#include "front/file_lists.h"

#include "text/columns.h"

namespace norvik::front {

namespace {

bool isDrive(std::string_view path) {
  return path.size() == 2 && path[1] == ':';
}

}  // namespace

void FolderList::setPath(std::string_view path) {
  std::string bare{path};
  while (bare.ends_with('\\')) bare.pop_back();
  if (isDrive(bare)) bare += '\\';
  set(path_, bare);
}

void FileList::list(const text::Disk& disk) {
  clear();
  const std::string_view between = path_.ends_with('\\') ? "" : "\\";
  text::ignoringErrors([&] {
    for (const auto& name : disk.matching(path_ + std::string{between} + pattern_)) add(name);
  });
}

bool walkTo(const text::Disk& disk, FolderList& folders, std::string_view path) {
  std::string wanted{path};
  if (isDrive(wanted)) wanted += '\\';
  if (wanted.empty() || !disk.folderExists(wanted)) return false;
  folders.setPath(disk.inFull(wanted));
  return true;
}

bool pickDrive(const text::Disk& disk, DriveList& drives, std::string_view drive) {
  if (!isDrive(drive) || !disk.hasDrive(text::raised(drive).front())) return false;
  drives.setPath(text::raised(drive));
  if (drives.folders() != nullptr) drives.folders()->setPath(text::raised(drive));
  return true;
}

}  // namespace norvik::front
