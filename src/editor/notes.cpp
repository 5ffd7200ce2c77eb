#include "editor/notes.h"

#include "editor/text_file.h"
#include "front/note_entry.h"
#include "text/line_writer.h"

#include <string>

namespace norvik::editor {

namespace {

std::string noteFile(const front::Session& session) {
  return session.opening.inProgramFolder(front::kNoteFile);
}

void putNotepadAway(front::Session& session) {
  front::TextBox& notepad = session.opening.TextOpeningNotes;
  if (!notepad.text().empty()) {
    front::appendNoteEntry(session, noteFile(session), {}, notepad.text());
    notepad.setText({});
  }
  notepad.hide();
}

void showNotes(front::Session& session, FormNotes& form) {
  const std::string path = noteFile(session);
  session.disk.openForAppending(path);
  form.RichTextBox1.setContent(readText(session.disk, path));
}

void writeWorkshopNotes(front::Session& session, front::FormOBJ& workshop) {
  const std::string& note = workshop.TextNotes.text();
  if (note.empty()) return;
  text::LineWriter file(session.disk, "Notes.txt", text::LineWriter::Mode::append);
  file.line(note);
  file.close();
  workshop.TextNotes.hide();
}

}  // namespace

void wireNotepad(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.MenuNotebook.clicked.add([&opening] {
    opening.TextOpeningNotes.show();
    opening.setFocus(opening.TextOpeningNotes);
  });
  opening.MenuNoteFile.clicked.add(
      [&session] { session.front.run("Notepad.exe " + noteFile(session)); });
  opening.TextOpeningNotes.doubleClicked.add([&session] { putNotepadAway(session); });
}

void wireFormNotes(front::Session& session, FormNotes& form) {
  form.loading.add([&form] { form.RichTextBox1.reset(); });
  form.shown.add([&] { showNotes(session, form); });
  form.CommandSave.clicked.add(
      [&] { writeText(session, form.RichTextBox1.content(), noteFile(session)); });
  form.CommandClose.clicked.add([&] { session.unload(form); });
  form.unloading.add([&form] { form.RichTextBox1.reset(); });
}

void wireFormHole(front::Session& session, FormHole& form, front::FormOBJ& workshop) {
  form.unloading.add([&] { writeWorkshopNotes(session, workshop); });
}

}  // namespace norvik::editor
