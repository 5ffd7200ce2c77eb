#include "lifecycle/file_menu.h"

#include "front/dial_frame.h"
#include "front/poser_location.h"
#include "front/screen_scale.h"
#include "text/columns.h"
#include "text/number_text.h"

namespace norvik::lifecycle {

namespace {

void changePoserLocation(front::Session& session) {
  front::Opening& opening = session.opening;
  const front::Answer answer =
      session.front.messageBox("Your present location of Poser as used by Norvik is " +
                                   opening.PoserLocation + ", do you want to change it?",
                               "Info", front::kYesNo);
  if (answer != front::Answer::yes) return;
  front::askForPoser(session);
  // A cancel leaves the dialog's last name, which is stored again.
  if (!opening.CommonDialogFindPoser.fileName().empty()) front::storePoserLocation(session);
}

void clearReadOnlyAttributes(front::Session& session) {
  front::CommonDialog& dialog = session.opening.CommonDialog1;
  const std::string folder = session.disk.currentFolder();
  if (!dialog.open(session.front, folder, {},
                   {"Take the read-only attribute off all files like this one"})) {
    return;
  }
  const std::string extension{text::extension(dialog.fileName())};
  std::int64_t count = 0;
  for (const std::string& name : session.disk.matching("*." + extension)) {
    if (!session.disk.isReadOnly(name)) continue;
    session.disk.setReadOnly(name, false);
    ++count;
  }
  session.front.messageBox("ReadOnly removed from" + text::wholeNumberText(count) + " files with " +
                               extension + " extensions.",
                           "Note!", front::kOk);
}

void startPoser(front::Session& session) {
  const front::Opening& opening = session.opening;
  const std::string& file = opening.LabelFileNameForEditor.caption();
  const bool scene = text::extension(file) == "pz3";
  if (!scene &&
      session.front.messageBox(
          "If you start Poser with a CR2 file it will open with the default model.  Do you "
          "want to do this?",
          "NOTE!", front::kYesNo) == front::Answer::no) {
    return;
  }
  session.front.run(opening.PoserLocation + "Poser.exe " + file);
}

void tidyForFileMenu(front::Session& session) {
  front::Opening& opening = session.opening;
  const std::initializer_list<front::Control*> hidden = {
      &opening.ListMRU,         &opening.FrameMash,     &opening.OptionMashOBJ,
      &opening.OptionMashMorph, &opening.PictureMirror, &opening.ListAllTexMaps};
  for (front::Control* control : hidden) control->hide();
  front::hideDialFrame(opening);
  front::readPoserLocation(session);
}

void tidyForToolsMenu(front::Opening& opening) {
  const std::initializer_list<front::Control*> hidden = {
      &opening.FrameMash, &opening.OptionMashOBJ, &opening.OptionMashMorph, &opening.PictureMirror};
  for (front::Control* control : hidden) control->hide();
  front::hideDialFrame(opening);
}

}  // namespace

void wireFileMenu(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.menuFile.opened.add([&session] { tidyForFileMenu(session); });
  opening.MenuCR2Tools.opened.add([&opening] { tidyForToolsMenu(opening); });
  opening.menuPLoc.clicked.add([&session] { changePoserLocation(session); });
  opening.menuScreenRes.clicked.add(
      [&session, &opening] { front::ResizeFormToScreen(session, opening); });
  opening.MenuAttrib.clicked.add([&session] { clearReadOnlyAttributes(session); });
  opening.MenuFileExit.clicked.add([&session, &opening] { session.unload(opening); });
  opening.MenuPoser.clicked.add([&session] { startPoser(session); });
  opening.MenuPStart.clicked.add(
      [&session, &opening] { session.front.run(opening.inProgramFolder("\\PStart.exe")); });
}

}  // namespace norvik::lifecycle
