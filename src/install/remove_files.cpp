#include "install/remove_files.h"

#include "install/staging.h"
#include "text/columns.h"

#include <algorithm>
#include <functional>

namespace norvik::install {

namespace {

/// Whether a file may go; a geometry file may serve others too.
bool mayRemove(front::Session& session, std::string_view path) {
  if (text::extension(path) != "obj") return true;
  return session.front.messageBox("This is a geometry file, are you sure?", "ALERT!",
                                  front::kYesNo) == front::Answer::yes;
}

void remove(front::Session& session, const std::string& path) {
  if (session.disk.isReadOnly(path)) {
    throw text::FileError(text::ErrorNumber::pathFileAccess, path, text::FileAct::deleting);
  }
  if (!session.front.moveToWasteBin(path)) session.disk.remove(path);
}

/// The folder that a path lies in.
std::string folderOf(const std::string& path) {
  return path.substr(0, path.size() - text::fileTitle(path).size());
}

void backUp(front::Session& session, const std::string& path, std::string_view drive) {
  const std::string target =
      std::string{drive} + path.substr(std::min<std::size_t>(2, path.size()));
  makeEveryLevel(session.disk, folderOf(target));
  session.disk.copy(path, target);
}

/// Whether no file of that name is there. Throws FileError where that cannot be told.
bool isMissing(const text::Disk& disk, const std::string& path) {
  try {
    static_cast<void>(disk.size(path));
    return false;
  } catch (const text::FileError& error) {
    if (error.number() == text::ErrorNumber::fileNotFound ||
        error.number() == text::ErrorNumber::pathNotFound || disk.folderExists(path)) {
      return true;
    }
    throw;
  }
}

/// Does a step with each file. Those that it failed for.
std::vector<std::string> leftOut(const front::ListBox& files,
                                 const std::function<void(const std::string&)>& step) {
  std::vector<std::string> failed;
  for (const std::string& path : files.items()) {
    if (!text::ignoringErrors([&] { step(path); })) failed.push_back(path);
  }
  return failed;
}

void tell(front::Session& session, std::string text, const std::vector<std::string>& paths) {
  if (paths.empty()) return;
  for (const std::string& path : paths) text.append("\r\n").append(path);
  session.front.messageBox(text, "Error!", front::kCritical);
}

void go(front::Session& session, FormRemoveFiles& form) {
  form.ListChecked.clear();
  for (const int index : form.ListFiles.selection()) {
    form.ListChecked.add(form.ListFiles.item(index));
  }
  std::vector<std::string> failed;
  if (form.OptionRemove.value()) {
    failed = leftOut(form.ListChecked, [&](const std::string& path) {
      if (mayRemove(session, path) && !isMissing(session.disk, path)) remove(session, path);
    });
  } else if (form.OptionBackup.value()) {
    session.hourglass(true);
    failed = leftOut(form.ListChecked, [&](const std::string& path) {
      if (!isMissing(session.disk, path)) backUp(session, path, form.Drive1.path());
      session.front.pumpEvents();
    });
    session.hourglass(false);
  }
  const bool removes = form.OptionRemove.value();
  form.ListFiles.clear();
  form.ListChecked.clear();
  tell(session,
       removes ? "These files could not be removed:" : "These files could not be copied:", failed);
}

}  // namespace

void wireRemoveFiles(front::Session& session, FormRemoveFiles& form) {
  form.LabelGo.clicked.add([&session, &form] { go(session, form); });
}

}  // namespace norvik::install
