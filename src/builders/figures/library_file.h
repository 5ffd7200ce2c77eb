#pragma once
// menuNewCR2ExtOBJ: a library file whose embedded geometry has moved out to an OBJ.

#include "front/session.h"

namespace norvik::builders {

/// Hangs the builder on menuNewCR2ExtOBJ. It takes the geometry of the part that is selected in
/// ListOBJExtract out of the destination, into an OBJ below Poser's Runtime\Geometries, and writes
/// a copy of the destination that refers to it, "new" in front of its name, beside it. The
/// destination is only read. Older files of these names are replaced, the OBJs after a question;
/// after a Cancel of the second one the new OBJ lies beside the destination, and there is no copy.
void wireLibraryFile(front::Session& session);

}  // namespace norvik::builders
