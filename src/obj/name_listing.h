#pragma once
// CommandListGroups, CommandListMats and LabelRichRename: the names of a mesh on show.

#include "workshop/workshop.h"

namespace norvik::obj {

/// Shows RichTextBoxGroups, the group names in their colours, and puts the materials away. One that
/// is on show stays as it is.
void showGroupListing(front::FormOBJ& form);

/// A click on CommandListGroups or CommandListMats shows the coloured names, or puts them away with
/// all that has been opened from them. LabelRichRename brings the list in which names are chosen.
void wireNameListing(Workshop& workshop);

}  // namespace norvik::obj
