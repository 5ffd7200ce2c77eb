#include "install/library_folders.h"

#include "install/staging.h"
#include "text/columns.h"
#include "text/file_names.h"

namespace norvik::install {

namespace {

bool isEmpty(const text::Disk& disk, const std::string& folder) {
  return disk.matching(inFolder(folder, "*.*")).empty() && disk.foldersIn(folder).empty();
}

/// The folder that holds a folder; a root holds itself.
std::string parentOf(const std::string& folder) {
  const auto last = folder.find_last_of('\\');
  const bool below = last != std::string::npos && last + 1 < folder.size();
  return below ? folder.substr(0, last) : folder;
}

bool isWithin(std::string_view inner, const std::string& outer) {
  return text::sameName(text::leftmost(std::string{inner} + "\\", outer.size() + 1), outer + "\\");
}

void removeFolder(front::Session& session, front::FolderList& folders) {
  const std::string folder = folders.path();
  const front::Answer answer =
      session.front.messageBox("Are you sure you want to remove " + folder + "?", "Confirm",
                               front::kOkCancel + front::kQuestion);
  if (answer != front::Answer::ok) return;
  if (!isEmpty(session.disk, folder)) {
    session.front.messageBox("This folder contains files! You must delete them first!", "Error!",
                             front::kOk);
    return;
  }
  session.disk.removeFolder(folder);
  const std::string parent = parentOf(folder);
  folders.setPath(parent);
  if (isWithin(session.disk.currentFolder(), folder)) session.disk.changeFolder(folders.path());
}

void makeFolder(front::Session& session, FormCR2Install& form) {
  session.disk.makeFolder(inFolder(form.DirCR2Install.path(), form.TextNewDir.text()));
  form.DirCR2Install.refresh();
}

}  // namespace

void wireLibraryFolders(front::Session& session, FormCR2Install& form) {
  form.LabelNewDir.clicked.add([&form] {
    form.TextNewDir.show();
    form.setFocus(form.TextNewDir);
  });
  form.TextNewDir.key.add([&session, &form](const std::string& key) {
    if (key == "Enter") makeFolder(session, form);
  });
  form.LabelRmDir.clicked.add([&session, &form] { removeFolder(session, form.DirCR2Install); });
}

}  // namespace norvik::install
