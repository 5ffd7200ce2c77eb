#include "figure/save.h"

#include "figure/path_pass.h"
#include "text/columns.h"

namespace norvik::figure {

namespace {

constexpr std::string_view kDefaultMap = "Default P4 Map";
constexpr std::string_view kDefaultMapToken = "GetStringRes(1029,53)";
constexpr std::string_view kPendingResult = "\\CR2.tmp";

PathSlots slotsForFile(const front::Opening& opening) {
  PathSlots slots = editedPaths(opening);
  if (slots.texture == kDefaultMap) slots.texture = kDefaultMapToken;
  return slots;
}

bool askForTarget(front::Session& session, std::string_view folder) {
  front::Opening& opening = session.opening;
  return opening.CommonDialog2.save(session.front, folder, opening.OpenedPath, {},
                                    {"Save the figure as", front::kFigureFilter});
}

/// Puts the pass's result in the place of the chosen file. A file there that is not to be deleted
/// makes the rename fail, in silence.
void storeResult(front::Session& session, bool deleteTarget) {
  const std::string scratch = session.opening.inProgramFolder(kPathScratch);
  const std::string& target = session.opening.CommonDialog2.fileName();
  text::ignoringErrors([&] {
    if (deleteTarget) {
      session.disk.replace(scratch, target);
    } else {
      session.disk.rename(scratch, target);
    }
  });
}

/// A save that ends: the changes count as dealt with, whatever became of them.
void saveEdits(front::Session& session, PathSlots slots, const std::function<void()>& finish) {
  passPaths(session, std::move(slots));
  finish();
  session.opening.PathsEdited = false;
}

void storePendingResult(front::Session& session, std::string_view folder) {
  front::Opening& opening = session.opening;
  if (!askForTarget(session, folder)) return;
  const std::string& target = opening.CommonDialog2.fileName();
  session.disk.replace(opening.inProgramFolder(kPendingResult), target);
  opening.DestPath = target;
  opening.PendingTempSave = false;
}

}  // namespace

void saveFile(front::Session& session) {
  PathSlots slots = slotsForFile(session.opening);
  if (!slots.obj.empty()) slots.obj.insert(0, "figureResFile :");
  saveEdits(session, std::move(slots), [&session] {
    if (!askForTarget(session, session.disk.currentFolder())) return;
    const front::CommonDialog& dialog = session.opening.CommonDialog2;
    bool sameName = false;
    text::ignoringErrors(
        [&] { sameName = session.disk.nameOnDisk(dialog.fileName()) == dialog.fileTitle(); });
    storeResult(session, sameName);
  });
}

void saveFileAs(front::Session& session) {
  const std::string folder{text::withoutLast(session.opening.PoserLocation, 1)};
  if (session.opening.PendingTempSave) {
    storePendingResult(session, folder);
    session.opening.PathsEdited = false;
    return;
  }
  PathSlots slots = slotsForFile(session.opening);
  // Without the blank and the colon: the line that this save has always written.
  if (!slots.obj.empty()) slots.obj.insert(0, "figureResFile");
  saveEdits(session, std::move(slots), [&session, &folder] {
    if (askForTarget(session, folder)) storeResult(session, true);
  });
}

void savePathsBeforeOpen(front::Session& session) {
  PathSlots slots = slotsForFile(session.opening);
  // This save looks for another keyword, so that the geometry line is never replaced.
  slots.obj.clear();
  saveEdits(session, std::move(slots), [&session] {
    const std::string folder = session.disk.currentFolder();
    askForTarget(session, folder);
    if (!askForTarget(session, folder)) return;
    const front::Opening& opening = session.opening;
    storeResult(session, opening.CommonDialog2.fileName() == opening.OpenedPath);
  });
}

void savePathsAtExit(front::Session& session) {
  PathSlots slots = editedPaths(session.opening);
  // The key comes out doubled, since the ready line begins with it.
  if (!slots.obj.empty()) slots.obj = "figureResFile" + session.opening.ObjLineText;
  saveEdits(session, std::move(slots), [&session] {
    if (askForTarget(session, session.disk.currentFolder())) storeResult(session, true);
  });
}

void wireSave(front::Session& session) {
  session.opening.MenuFileSave.clicked.add([&session] { saveFile(session); });
  session.opening.MenuFileSaveAs.clicked.add([&session] { saveFileAs(session); });
}

}  // namespace norvik::figure
