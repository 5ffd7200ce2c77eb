#pragma once
// The click on the list of recent files.

#include "front/session.h"

namespace norvik::lifecycle {

/// Hangs RecentCheck on ListMRU: the clicked file is opened without a dialog; one that is gone is
/// taken off the list, with a message. menuRecent shows the list.
void wireRecentFiles(front::Session& session);

}  // namespace norvik::lifecycle
