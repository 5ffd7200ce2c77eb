#include "lifecycle/poser_location.h"

#include "text/columns.h"

namespace norvik::lifecycle {

void askForPoser(front::Session& session) {
  session.opening.CommonDialogFindPoser.open(
      session.front, session.disk.currentFolder(), {},
      {"Where is Poser.exe?", "Poser's program|*.exe|All files|*.*",
       "Norvik looks beside it for the meshes and textures that figures name. Without Poser, "
       "Cancel is fine: the place can be told later, with File, Poser Location."});
}

void storePoserLocation(front::Session& session) {
  constexpr std::size_t kProgramName = 9;  // Poser.exe
  const std::string& program = session.opening.CommonDialogFindPoser.fileName();
  session.settings.set("Startup", "PLoc", text::withoutLast(program, kProgramName));
}

void readPoserLocation(front::Session& session) {
  session.opening.PoserLocation = session.settings.get("Startup", "PLoc", "0");
}

}  // namespace norvik::lifecycle
