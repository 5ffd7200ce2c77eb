#include "editor/second_file.h"

#include "editor/check_sgi_editor.h"
#include "editor/load_pane.h"

#include <string>

namespace norvik::editor {

namespace {

void openOnTheRight(front::Session& session, FormEditor& form, const std::string& path) {
  setPane(form, Side::right, {});
  halvePanes(form);
  CheckSGIEditor(session, path);
  loadPane(session, form, Side::right, path);
  form.LabelSecFile.setCaption(path);
}

void openOnTheLeft(front::Session& session, FormEditor& form, const std::string& path) {
  CheckSGIEditor(session, path);
  loadPane(session, form, Side::left, path);
  form.setCaption(path);
}

void openSecondFile(front::Session& session, FormEditor& form) {
  if (session.front.messageBox("Recent files list?", "Note!", front::kYesNo) ==
      front::Answer::yes) {
    form.ListMRU.clear();
    for (const std::string& path : session.opening.ListMRU.items()) form.ListMRU.add(path);
    form.ListMRU.show();
    form.setFocus(form.ListMRU);
    return;
  }
  const front::DialogWords words{"Open a second file"};
  if (!form.CommonDialogOpen.open(session.front, session.disk.currentFolder(), {}, words)) {
    return;
  }
  form.ListMRU.hide();
  openOnTheRight(session, form, form.CommonDialogOpen.fileName());
}

void openRecent(front::Session& session, FormEditor& form) {
  if (form.ListMRU.index() == front::ListBox::kNone) return;
  const std::string path{form.ListMRU.chosen()};
  form.ListMRU.hide();
  if (form.ListMRU.shiftHeld()) {
    openOnTheRight(session, form, path);
  } else {
    openOnTheLeft(session, form, path);
  }
}

void newFile(front::Session& session, FormEditor& form) {
  setPane(form, Side::right, {});
  halvePanes(form);
  form.LabelSecFile.setCaption(session.opening.PoserLocation + "New.txt");
  form.LabelFileSizeEd2.setCaption("     New File");
  form.LabelFileSizeEd2.show();
}

/// A press, a key, a caret or a paste in another control takes the focus from the list.
void hideListOnLeaving(FormEditor& form) {
  const auto hide = [&form] { form.ListMRU.hide(); };
  for (front::Control* control : form.controls()) {
    if (control == &form.ListMRU) continue;
    control->pressed.add([hide](front::Mouse) { hide(); });
    control->key.add([hide](const std::string&) { hide(); });
  }
  for (const Side side : {Side::left, Side::right}) {
    form.page(side).caretMoved.add(hide);
    form.page(side).changed.add(hide);
  }
  for (front::TextBox* box :
       {static_cast<front::TextBox*>(&form.ComboFind), &form.TextReplace, &form.TextLineNum}) {
    box->caretMoved.add(hide);
    box->changed.add(hide);
  }
}

}  // namespace

void wireSecondFile(front::Session& session, FormEditor& form) {
  hideListOnLeaving(form);
  form.PictureSecFile.released.add([&](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) openSecondFile(session, form);
  });
  form.ListMRU.clicked.add([&] { openRecent(session, form); });
  form.OptionNewFile.clicked.add([&] { newFile(session, form); });
}

}  // namespace norvik::editor
