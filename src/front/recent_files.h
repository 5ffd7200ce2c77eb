#pragma once
// The list of recent files, oldest first, kept in the settings between runs.

#include "front/session.h"

#include <string>

namespace norvik::front {

/// Adds a file to ListMRU unless it is there already, in any case of its letters.
void AddMRUItem(Opening& opening, const std::string& path);

/// Adds a file to ListMRU, which keeps the ten newest. MruCount is not lowered when a missing file
/// is taken off the list, so each such removal costs one place until the next start.
void AddMenuElement(Opening& opening, const std::string& path);

/// Fills the list from the settings; a gap in the keys ends the loading.
void loadRecentFiles(Session& session);

/// Keeps the list in the settings. Keys of a longer list of earlier stay.
void saveRecentFiles(Session& session);

}  // namespace norvik::front
