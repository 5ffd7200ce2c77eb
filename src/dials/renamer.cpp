#include "dials/renamer.h"

#include "dials/rename_pass.h"

namespace norvik::dials {

namespace {

void say(front::Session& session, std::string_view text, std::string_view title = "Note!") {
  session.front.messageBox(text, title, front::kOk);
}

void listFiles(front::Session& session, Renamer& form) {
  form.File1.setPath(form.Dir1.path());
  form.File1.list(session.disk);
}

void prepare(front::Session& session, Renamer& form) {
  form.restoreStart();
  constexpr std::size_t kDrive = 2;
  const std::string& folder = session.disk.currentFolder();
  form.Drive1.setPath(folder.substr(0, kDrive));
  form.Dir1.setPath(folder);
  listFiles(session, form);
}

/// Takes a file for the next drop. One that is read-only cannot be replaced; it stays picked even
/// if the operator leaves it so.
void pick(front::Session& session, Renamer& form, const std::string& path) {
  form.pickedFile = path;
  form.Label1.setCaption(text::fileTitle(path));
  if (!session.disk.isReadOnly(path)) return;
  const front::Answer answer = session.front.messageBox(
      "This is a read-only file, probably from a CD.  It cannot be edited.  Would you like to "
      "change this attribute so it can be edited by Norvik?",
      "Note!", front::kOkCancel);
  if (answer == front::Answer::ok) session.disk.setReadOnly(path, false);
}

void pickFromList(front::Session& session, Renamer& form) {
  const std::string& folder = form.File1.path();
  const std::string_view between = folder.ends_with('\\') ? "" : "\\";
  pick(session, form, folder + std::string{between} + std::string{form.File1.chosen()});
}

void renamePicked(front::Session& session, Renamer& form) {
  if (form.pickedFile.empty()) return say(session, "You must choose a file first!");
  if (!form.chosen) return say(session, "Choose from the buttons below first.");
  ++form.passes;
  session.hourglass(true);
  const bool renamed =
      text::ignoringErrors([&] { renameFile(session.disk, form.pickedFile, *form.chosen); });
  session.hourglass(false);
  if (!renamed) say(session, "ERROR!", "Error!");
}

}  // namespace

void wireRenamer(front::Session& session, Renamer& form) {
  session.opening.MenuDialRen.clicked.add([&session, &form] { session.load(form); });
  form.loading.add([&session, &form] { prepare(session, form); });
  form.Dir1.changed.add([&session, &form] { listFiles(session, form); });
  form.File1.clicked.add([&session, &form] { pickFromList(session, form); });
  form.LabelFriendly.clicked.add([&form] { form.chosen = Direction::toFriendly; });
  form.LabelGetSR.clicked.add([&form] { form.chosen = Direction::toGetStringRes; });
  form.Picture1.dropped.add([&session, &form](front::Control&) { renamePicked(session, form); });
  form.Picture1.filesDropped.add([&session, &form](const std::vector<std::string>& files) {
    pick(session, form, files.front());
    renamePicked(session, form);
  });
  form.Picture1.clicked.add([&session] {
    say(session, "You must choose a file first, and drag it from the label to here!");
  });
  form.MenuHelp.clicked.add([&session] {
    say(session,
        "Pick either Change to Friendly or Revert.  Choose a file, then drag and drop it on the "
        "picture. Be sure to revert to GetStringRes before releasing the CR2 to avoid conflict in "
        "non-English Poser versions!  Check the Manual for more information.",
        "Help");
  });
}

}  // namespace norvik::dials
