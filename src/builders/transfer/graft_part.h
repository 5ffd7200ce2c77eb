#pragma once
// The second half of the body part transfer: the body part into the destination.

#include "front/session.h"

namespace norvik::builders {

/// Grafts the part in "\bp.txt" onto the figure that FileChooser and FileLabel name, as a child of
/// the parent that it had. Between its messages it waits for the operator to pick: an OBJ and
/// another file again by FileLabel, the name by NameLabel, a chain and a place in it in ChainList.
/// The result is built in "newcr2.doc" in the current folder and ends as "New-" and the figure's
/// name beside it. Source and destination are read alone. Throws FileError for a figure that ends
/// where more is expected, and fileAlreadyExists (58) where the result's name is taken;
/// "newcr2.doc" then stays.
void BodyPartTransfer(front::Session& session);

/// Makes the routine callable by its name, and lets Enter in NameBox give NameLabel its text. No
/// control reaches the routine: MenuTransferParts does nothing.
void wireGraftPart(front::Session& session);

}  // namespace norvik::builders
