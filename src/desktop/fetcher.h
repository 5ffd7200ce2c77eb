#pragma once
// Texts from the network.

#include "front/front_end.h"
#include "text/disk.h"

#include <string_view>

namespace norvik::desktop {

/// Fetches what stands at an address into a file, and waits for it, though not for ever; the window
/// repaints meanwhile. An error leaves the file alone.
front::Fetched fetchInto(text::Disk& disk, std::string_view address, std::string_view path);

}  // namespace norvik::desktop
