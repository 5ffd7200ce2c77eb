#include "obj/save_result.h"

namespace norvik::obj {

std::optional<std::string> saveResult(front::Session& session, std::string_view scratch,
                                      std::string_view proposed, const front::DialogWords& words) {
  front::CommonDialog& dialog = session.opening.CommonDialog2;
  if (!dialog.save(session.front, session.disk.currentFolder(), proposed, {}, words)) {
    return std::nullopt;
  }
  session.disk.replace(scratch, dialog.fileName());
  return dialog.fileName();
}

}  // namespace norvik::obj
