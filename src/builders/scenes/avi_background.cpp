#include "builders/scenes/avi_background.h"

#include "front/finished_file.h"
#include "text/first_dot.h"
#include "text/line_search.h"

namespace norvik::builders {

namespace {

using text::anywhere;

constexpr std::string_view kScratch = "\\Avi.txt";

/// The film's line is the last one: no brackets are closed behind it.
void copyThroughFilm(text::RewritePass& pass) {
  pass.copyLines({anywhere("bgMovie")});
  if (!pass.in().atEnd()) pass.out().line(pass.in().line());
}

void writeBackground(front::Session& session, const std::string& scene,
                     const std::string& scratch) {
  text::RewritePass pass(session.disk, scene, scratch);
  text::copyThrough(pass, {anywhere("version")}, text::holding("version"));
  text::copyUpTo(pass, {anywhere("number")}, text::holding("number"));
  pass.out().line("\tnumber 3.01");
  copyThroughFilm(pass);
  pass.finish();
}

/// False when the name is taken.
bool renamed(text::Disk& disk, const std::string& scratch, const std::string& name) {
  try {
    disk.rename(scratch, name);
    return true;
  } catch (const text::FileError& error) {
    if (error.number() != text::ErrorNumber::fileAlreadyExists) throw;
    return false;
  }
}

void PZ3AVI(front::Session& session) {
  front::Opening& opening = session.opening;
  front::CommonDialog& dialog = opening.CommonDialog1;
  if (!dialog.open(session.front, session.disk.currentFolder(), "Open PZ3 File",
                   {{}, front::kSceneFilter})) {
    return;
  }
  const std::string scene = dialog.fileName();
  const std::string scratch = opening.inProgramFolder(kScratch);
  text::keepApart(session.disk, scene, scratch);
  text::ignoringErrors([&] { session.disk.remove(scratch); });
  if (text::extension(scene) != "pz3") {
    session.front.messageBox("You must choose a PZ3 file.", "Error!", front::kOk);
    return;
  }
  session.hourglass(true);
  writeBackground(session, scene, scratch);
  const std::string name = text::beforeFirstDot(scene, "-AVI.pp2");
  const bool done = renamed(session.disk, scratch, name);
  session.hourglass(false);
  if (done) {
    session.front.tellOf({.path = name});
    session.front.messageBox("AVI background file created as " + name, "Success!", front::kOk);
  } else {
    session.front.messageBox("You already have a file by this name, delete or move it first.",
                             "Error!", front::kOk);
  }
}

}  // namespace

void wireAviBackground(front::Session& session) {
  session.opening.MenuPZ3AVI.clicked.add([&session] { PZ3AVI(session); });
}

}  // namespace norvik::builders
