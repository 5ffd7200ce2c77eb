#include "lifecycle/start.h"

#include "figure/open_file.h"
#include "front/poser_location.h"
#include "front/recent_files.h"
#include "front/scratch_files.h"
#include "front/screen_scale.h"
#include "text/columns.h"

namespace norvik::lifecycle {

namespace {

constexpr std::string_view kStartup = "Startup";
constexpr std::string_view kUnset = "0";
constexpr float kViewLeft = 384;

}  // namespace

void startProgram(front::Session& session) {
  front::Opening& opening = session.opening;
  session.load(opening);

  if (session.settings.get(kStartup, "PLoc", kUnset) == kUnset) {
    front::askForPoser(session);
    front::storePoserLocation(session);
  }
  front::readPoserLocation(session);
  if (session.settings.get(kStartup, "NorvikLoc", kUnset) == kUnset) {
    session.settings.set(kStartup, "NorvikLoc", opening.ProgramFolder);
  }
  session.settings.set(kStartup, "Ver", front::kVersion);
  text::ignoringErrors([&] { session.disk.makeFolder(opening.inProgramFolder("\\cr2install")); });
  front::loadRecentFiles(session);
  session.front.pumpEvents();
  opening.MenuCR2Tools.setEnabled(false);
  front::deleteScratchFiles(session, front::kMeshScratchFiles);
  opening.PictureOBJView.setLeft(front::scaledLeft(opening, kViewLeft));

  opening.OpenedPath = session.commandLine;
  if (!text::extension(opening.OpenedPath).empty()) figure::ComStart(session, opening.OpenedPath);
}

}  // namespace norvik::lifecycle
