#include "lifecycle/exit.h"

#include "figure/save.h"
#include "front/note_entry.h"
#include "front/recent_files.h"
#include "front/scratch_files.h"
#include "lifecycle/closing_animation.h"

namespace norvik::lifecycle {

namespace {

/// The note goes beside the program folder, under a name that begins with the folder's name: the
/// path and the file's name are joined without a backslash.
void appendNote(front::Session& session) {
  const std::string& note = session.opening.TextOpeningNotes.text();
  if (note.empty()) return;
  front::appendNoteEntry(session, session.opening.inProgramFolder("Notes.txt"), {}, note);
}

/// Forms that say or ask something on leaving do so in this order; the others follow.
void unloadForms(front::Session& session) {
  for (const std::string_view name : {"FormLaunch", "FormOBJ", "FormTree", "FormEditor"}) {
    if (front::Form* form = session.findForm(name); form != nullptr) session.unload(*form);
  }
  for (front::Form* form : session.forms()) {
    if (form != &session.opening) session.unload(*form);
  }
}

void exitSteps(front::Session& session) {
  front::Opening& opening = session.opening;
  if (opening.PathsEdited && session.front.messageBox("Save path changes before exit?", "Alert!",
                                                      front::kYesNo) == front::Answer::yes) {
    figure::savePathsAtExit(session);
  }
  text::ignoringErrors([&] { session.disk.remove(opening.inProgramFolder("\\color.txt")); });
  appendNote(session);
  front::saveRecentFiles(session);
  opening.ListMRU.hide();
  unloadForms(session);
  front::deleteScratchFiles(session, front::kScratchFiles);
  playClosingAnimation(session);
  session.front.playSound(session.front.systemFolder() + "\\Tallow3.wav");
}

}  // namespace

void wireExit(front::Session& session) {
  session.opening.unloading.add([&session] { exitSteps(session); });
}

}  // namespace norvik::lifecycle
