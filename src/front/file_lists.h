#pragma once
// The three lists with which a form lets the operator walk to a file: drives, folders, files.

#include "front/list_box.h"
#include "text/disk.h"

#include <string>
#include <string_view>

namespace norvik::front {

/// The folder that the operator has walked to, without a backslash at its end but for a root.
class FolderList : public Control {
 public:
  FolderList(Form& form, std::string_view name) : Control(form, name, ControlKind::folderList) {}

  const std::string& path() const { return path_; }
  void setPath(std::string_view path);
  /// Has what is drawn looked at anew: the folders on the disk have changed.
  void refresh() { touch(); }

  Event<> changed{*this};  ///< the operator has walked to another folder

 private:
  std::string path_;
};

/// The drive that the operator has picked, "C:", and the folder list that follows it, if any.
class DriveList : public Control {
 public:
  DriveList(Form& form, std::string_view name, FolderList* folders = nullptr)
      : Control(form, name, ControlKind::driveList), folders_(folders) {}

  const std::string& path() const { return path_; }
  void setPath(std::string_view path) { set(path_, path); }

  FolderList* folders() const { return folders_; }

  Event<> changed{*this};  ///< the operator has picked another drive

 private:
  FolderList* folders_;
  std::string path_;
};

/// The names of the files of a folder that match a pattern, in order.
class FileList : public ListBox {
 public:
  FileList(Form& form, std::string_view name, std::string_view pattern = "*.*",
           Selection selection = Selection::single)
      : ListBox(form, name, selection, ControlKind::fileList), pattern_(pattern) {}

  const std::string& path() const { return path_; }
  void setPath(std::string_view path) { set(path_, path); }
  const std::string& pattern() const { return pattern_; }
  void setPattern(std::string_view pattern) { set(pattern_, pattern); }

  /// Lists the files anew, with nothing selected; none of a folder that cannot be read.
  void list(const text::Disk& disk);

 private:
  std::string path_;
  std::string pattern_;
};

/// What the operator does at a folder list: goes to a folder. False, and nothing changed, if it is
/// not there.
bool walkTo(const text::Disk& disk, FolderList& folders, std::string_view path);

/// What the operator does at a drive list: picks "C:"; the folder list beside it goes to the
/// drive's root folder. False, and nothing changed, if there is no such drive.
bool pickDrive(const text::Disk& disk, DriveList& drives, std::string_view drive);

}  // namespace norvik::front
