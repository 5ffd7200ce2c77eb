#include "builders/phi/edit_phi.h"

#include "front/print_lines.h"
#include "text/columns.h"
#include "text/rewrite_pass.h"

namespace norvik::builders {

namespace {

constexpr std::string_view kScratch = "\\PhiEdit.txt";

void setLine(FormPhi& form, int index, std::string_view line) {
  form.ListPhi.remove(index);
  form.ListPhi.insert(index, line);
  form.ListPhi.choose(index);
}

void takeLine(FormPhi& form) {
  form.TextPhiEdit.setText(form.ListPhi.chosen());
  form.TextPhiEdit.show();
  form.setFocus(form.TextPhiEdit);
}

void putLineBack(FormPhi& form) {
  const int index = form.ListPhi.index();
  if (index == front::ListBox::kNone) return;
  const std::string before{form.ListPhi.item(index)};
  const std::string& after = form.TextPhiEdit.text();
  setLine(form, index, after);
  form.LabelPhiSave.show();
  if (after != before) form.edits.add({index, before, after});
}

void writeList(front::Session& session, const FormPhi& form, const std::string& scratch) {
  text::LineWriter out(session.disk, scratch);
  for (const std::string& line : form.ListPhi.items()) out.line(line);
  out.close();
}

/// The file must be there and may not be read-only, as for a delete that comes first.
void save(front::Session& session, FormPhi& form) {
  const std::string& path = form.LabelPhiFileName.caption();
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  if (session.disk.isReadOnly(path)) {
    throw text::FileError(text::ErrorNumber::pathFileAccess, path, text::FileAct::deleting);
  }
  text::keepApart(session.disk, path, scratch);
  try {
    writeList(session, form, scratch);
    session.disk.replace(scratch, path);
  } catch (const text::FileError&) {
    text::ignoringErrors([&] { session.disk.remove(scratch); });
    throw;
  }
  form.edits.markSaved();
  session.front.messageBox("Modified Phi file saved.", "Note!", front::kOk);
}

void printList(front::Session& session, const FormPhi& form) {
  const std::string now = session.front.now();
  const std::string heading(12, ' ');
  std::vector<std::string> lines{"", "",
                                 heading + "Phi File for " + form.LabelPhiFileName.caption() +
                                     "   " + std::string{text::before(now, " ")},
                                 "", ""};
  const std::size_t headingLines = lines.size();
  lines.insert(lines.end(), form.ListPhi.items().begin(), form.ListPhi.items().end());
  front::printLines(session.front, lines, headingLines);
}

}  // namespace

void undoEdit(FormPhi& form) {
  if (const auto edit = form.edits.undo()) setLine(form, edit->index, edit->before);
}

void redoEdit(FormPhi& form) {
  if (const auto edit = form.edits.redo()) setLine(form, edit->index, edit->after);
}

void wireEditPhi(front::Session& session, FormPhi& form) {
  form.ListPhi.doubleClicked.add([&form] { takeLine(form); });
  form.TextPhiEdit.doubleClicked.add([&form] { putLineBack(form); });
  form.LabelPhiSave.clicked.add([&session, &form] { save(session, form); });
  form.LabelPhiDone.clicked.add([&session, &form] { session.unload(form); });
  form.MenuPrint.clicked.add([&session, &form] { printList(session, form); });
  form.MenuPhiHelp.clicked.add([&session] {
    session.front.messageBox(
        "Doubleclick a line to edit it in the lower text box.  When you are done editing, "
        "doubleclick the edited line.  The 'Save File' button will appear, you may edit further or "
        "save at any time.",
        "Help", front::kOk);
  });
  form.unloading.add([&form] { form.restoreStart(); });
}

}  // namespace norvik::builders
