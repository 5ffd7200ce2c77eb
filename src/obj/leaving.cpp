#include "obj/leaving.h"

#include "front/note_entry.h"
#include "workshop/reset.h"

namespace norvik::obj {

namespace {

/// Makes the file if there is none, whether there is a note or not.
void appendNote(Workshop& workshop) {
  front::Session& session = workshop.session;
  const std::string path = session.opening.inProgramFolder(front::kNoteFile);
  const std::string& note = workshop.form.TextNotes.text();
  if (note.empty()) {
    text::ignoringErrors([&] { session.disk.openForAppending(path); });
    return;
  }
  front::appendNoteEntry(session, path, session.opening.LabelOBJFileName.caption(), note);
  workshop.form.TextNotes.setText({});
}

void leave(Workshop& workshop) {
  // Renamed groups and materials are to be saved here, in front of the notes.
  appendNote(workshop);
  ++workshop.departures;
  workshop.spin.SpinStopped = true;
  forgetMeshInView(workshop);
  workshop.form.dropSurfaces();
}

}  // namespace

void wireLeaving(Workshop& workshop) {
  workshop.form.unloading.add([&workshop] { leave(workshop); });
}

}  // namespace norvik::obj
