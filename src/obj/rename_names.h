#pragma once
// Groups and materials get other names, or are marked to be dropped.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A click in ListGroups shows TextGrpRename; the return key there notes the new name of the
/// selected group in ListGrpRen and changes the list, or, with nothing in the box, takes the group
/// out. The file is rewritten when the form is left. The materials have twins of all this.
void wireRenaming(Workshop& workshop);

}  // namespace norvik::obj
