#pragma once
// The display modes of the main form.

#include "front/session.h"

namespace norvik::figure {

/// Clears what the last file left in the lists and puts PictureOBJView in its place; every open and
/// the start with a file begin so.
void prepareForFile(front::Opening& opening);

/// Hides everything of a figure and shows the OBJ tools for a mesh file.
void enterObjMode(front::Session& session, const std::string& path);

}  // namespace norvik::figure
