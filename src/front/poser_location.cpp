#include "front/poser_location.h"

#include "text/columns.h"

namespace norvik::front {

bool askForPoser(Session& session, std::string_view title) {
  return session.opening.CommonDialogFindPoser.open(
      session.front, session.disk.currentFolder(), title,
      {"Where is Poser.exe?", "Poser's program|*.exe|All files|*.*",
       "Norvik looks beside it for the meshes and textures that figures name. Without Poser, "
       "Cancel is fine: the place can be told later, with File, Poser Location."});
}

void storePoserLocation(Session& session) {
  constexpr std::size_t kProgramName = 9;  // Poser.exe
  const std::string& program = session.opening.CommonDialogFindPoser.fileName();
  session.settings.set("Startup", "PLoc", text::withoutLast(program, kProgramName));
}

void readPoserLocation(Session& session) {
  session.opening.PoserLocation = session.settings.get("Startup", "PLoc", "0");
}

}  // namespace norvik::front
