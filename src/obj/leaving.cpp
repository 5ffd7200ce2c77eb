#include "obj/leaving.h"

#include "front/note_entry.h"
#include "obj/name_side.h"
#include "obj/rewrite_names.h"
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

/// A list of names on show is to be closed first: one word, and then it is the operator's turn
/// until it is.
void waitForClosedLists(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  for (const NameSide& side : {materialSide(form), groupSide(form)}) {
    if (!side.names.visible()) continue;
    workshop.session.front.messageBox(side.closeFirst, "Error!", front::kCritical);
    while (side.names.visible()) workshop.session.front.waitForOperator();
    return;
  }
}

void leave(Workshop& workshop) {
  if (workshop.form.RenamesPending) {
    waitForClosedLists(workshop);
    // Whoever waited may find that the form was left, or reset, meanwhile.
    if (!workshop.form.loaded()) return;
    if (workshop.form.RenamesPending) rewriteNames(workshop);
  }
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
