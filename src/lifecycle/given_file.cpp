#include "lifecycle/given_file.h"

#include "figure/file_kind.h"
#include "figure/open_file.h"
#include "front/recent_files.h"

namespace norvik::lifecycle {

void openGivenFile(front::Session& session) {
  using figure::FileKind;
  front::Opening& opening = session.opening;
  if (session.commandLine.empty()) return;
  const FileKind kind = figure::kindOf(session.commandLine);
  const bool ofTheStart = kind == FileKind::cr2 || kind == FileKind::pz3 || kind == FileKind::obj;
  if (ofTheStart) return;
  if (!session.disk.exists(session.commandLine)) {
    session.front.messageBox("There is no file " + session.commandLine, "Norvik", front::kCritical);
    return;
  }
  if (figure::figureRules(kind) == nullptr && kind != FileKind::mtl) return;
  opening.OpenedPath = session.commandLine;
  front::AddMRUItem(opening, opening.OpenedPath);
  opening.SkipOpenDialog = true;
  figure::leaveChannelReorder(opening);
  figure::openFile(session);
}

}  // namespace norvik::lifecycle
