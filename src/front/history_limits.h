#pragma once
// How many old versions of files are kept, as the settings say.

#include "front/settings.h"
#include "text/history.h"

namespace norvik::front {

/// "Entries" and "Megabytes" of the section "History"; 200 and 4096 where they are no numbers.
text::History::Limits historyLimits(const Settings& settings);

}  // namespace norvik::front
