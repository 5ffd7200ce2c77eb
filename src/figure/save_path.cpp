#include "figure/save_path.h"

namespace norvik::figure {

std::optional<std::string> chooseSavePath(front::Session& session, std::string_view proposed,
                                          std::string_view purpose) {
  front::CommonDialog& dialog = session.opening.CommonDialog2;
  if (!dialog.save(session.front, session.disk.currentFolder(), proposed, {},
                   {purpose, front::kFigureFilter})) {
    return std::nullopt;
  }
  return dialog.fileName();
}

}  // namespace norvik::figure
