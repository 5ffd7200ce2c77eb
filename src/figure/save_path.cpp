#include "figure/save_path.h"

namespace norvik::figure {

std::optional<std::string> chooseSavePath(front::Session& session, std::string_view proposed) {
  front::CommonDialog& dialog = session.opening.CommonDialog2;
  if (!dialog.save(session.front, session.disk.currentFolder(), proposed)) return std::nullopt;
  return dialog.fileName();
}

}  // namespace norvik::figure
