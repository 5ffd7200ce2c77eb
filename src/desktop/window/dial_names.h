#pragma once
// Channels by their names.

#include "desktop/bind/list_view.h"

namespace norvik::desktop {

/// Shows the items of a list of channels, which are data for the tools, by the dial's name, with
/// the internal name behind it where that is another one. `withActor` puts the actor in front.
void showDialNames(ListView& view, bool withActor);

}  // namespace norvik::desktop
