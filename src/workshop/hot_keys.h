#pragma once
// LabelHotKeys and its list.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A click on LabelHotKeys shows ListHotKeys; a right click on the list hides it.
void wireHotKeyList(Workshop& workshop);

}  // namespace norvik::obj
