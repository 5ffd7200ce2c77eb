#pragma once
// The files that a CR2 names.
//
// The operator sees them when a figure is about to be installed, and prints them with
// PicturePrintCR2Files. The list is a plain search for eight endings of file names; nothing is
// written.

#include "front/session.h"

#include <string>

namespace norvik::install {

/// Fills ListboxListCR2Files with the lines that hold such an ending, as they stand, and shows the
/// three buttons of the installer. A line goes in once where it stands next to itself, and again
/// where another one comes between. The line ends are repaired first; a refusal of that leaves the
/// file as it is and does not end the listing.
void ListCR2Files(front::Session& session, std::string path);

void wirePrintCR2Files(front::Session& session);

}  // namespace norvik::install
