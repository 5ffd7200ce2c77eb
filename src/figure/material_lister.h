#pragma once
// The lister of materials and their colours.

#include "front/session.h"

#include <string>

namespace norvik::figure {

/// Lists a file's materials into ListMaterials, and their colours and highlights, times 256, into
/// ListMATColors and ListMatHiLite; then shows the first material's on the two pictures. In figures
/// the first material that is named like a prop ends the list, until another `figure`; in hair and
/// prop files the first material is passed over. Throws FileError inputPastEnd for a material that
/// the file ends in.
void MatLister(front::Session& session, const std::string& path);

/// Sets both colour pictures from the lists' entries at an index; without one they turn black.
void showMaterialColours(front::Opening& opening, int index);

/// Lets a click on ListMaterials show that material's colours.
void wireMaterialList(front::Session& session);

}  // namespace norvik::figure
