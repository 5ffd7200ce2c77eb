#pragma once
// PictureOBJExtract: the geometry that a figure file itself holds, as OBJ files.

#include "front/session.h"

namespace norvik::obj {

/// A left click on PictureOBJExtract lists the actors and props of the destination that have a
/// geometry of their own in ListOBJExtract, with "DONE" behind them; a click on that writes the
/// selected ones into the current folder, each to a file named after it or all to one that is named
/// after the figure. Before a file is written over the operator is asked. Indexes stay as they are,
/// so that in one file the later ones refer to the vertices of the first. An entry is looked for
/// from the top of the figure in any line; a figure that ends before the geometry does is FileError
/// 62, and what was copied until then stays. A right click on the list puts it away.
void wireExtractGeometry(front::Session& session);

}  // namespace norvik::obj
