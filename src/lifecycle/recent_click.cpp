#include "lifecycle/recent_click.h"

#include "figure/open_file.h"
#include "front/recent_files.h"

namespace norvik::lifecycle {

namespace {

void RecentCheck(front::Session& session) {
  front::Opening& opening = session.opening;
  const int index = opening.ListMRU.index();
  opening.OpenedPath = opening.ListMRU.item(index);
  opening.ListMRU.hide();
  if (!session.disk.exists(opening.OpenedPath)) {
    session.front.messageBox("This file has been moved or deleted.", "Error!", front::kCritical);
    opening.ListMRU.remove(index);
    return;
  }
  front::AddMRUItem(opening, opening.OpenedPath);
  opening.SkipOpenDialog = true;
  figure::leaveChannelReorder(opening);
  figure::openFile(session);
}

}  // namespace

void wireRecentFiles(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.menuRecent.clicked.add([&opening] { opening.ListMRU.show(); });
  opening.ListMRU.clicked.add([&session, &opening] {
    if (opening.ListMRU.index() != front::ListBox::kNone) RecentCheck(session);
  });
}

}  // namespace norvik::lifecycle
