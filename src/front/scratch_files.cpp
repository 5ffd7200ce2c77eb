#include "front/scratch_files.h"

namespace norvik::front {

void deleteScratchFiles(Session& session, std::span<const std::string_view> names) {
  for (const std::string_view name : names) {
    text::ignoringErrors([&] { session.disk.remove(session.opening.inProgramFolder(name)); });
  }
}

}  // namespace norvik::front
