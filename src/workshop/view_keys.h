#pragma once
// The keys of the workshop's form.

#include "workshop/workshop.h"

namespace norvik::obj {

/// Escape, "r", blank, "/", "*", "+", "-", "9" and "3": ListHotKeys tells the operator of them.
void wireViewKeys(Workshop& workshop);

}  // namespace norvik::obj
