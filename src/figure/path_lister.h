#pragma once
// The listers of a figure's geometry references.

#include "front/session.h"

#include <string>

namespace norvik::figure {

/// Puts the figure's OBJ reference into TextMainOBJ, its disk path into LabelOBJFileName, and the
/// references of its props into ListPropObj. The current folder moves along the reference below
/// Poser's geometries and stays there; where it cannot, the operator is told and the lister ends.
/// Embedded geometry shows PictureOBJExtract. Throws FileError inputPastEnd for a prop that the
/// file ends in.
void OpenCR2(front::Session& session, const std::string& path);

/// The same for hair and prop files, whose first prop holds the main reference. A missing folder is
/// thrown, pathNotFound (76).
void OpenHR2(front::Session& session, const std::string& path);

}  // namespace norvik::figure
