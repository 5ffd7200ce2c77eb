#pragma once
// The materials of a figure and of its OBJ, compared.

#include "front/session.h"
#include "materials/form_mat_coord.h"

#include <string>

namespace norvik::materials {

/// Lists the figure's materials, each once, into ListCR2Mat: those behind its line "figure" to the
/// end of the file, but for Preview. Throws FileError inputPastEnd (62) for a file without
/// figureResFile or without that line.
void listFigureMaterials(FormMatCoord& form, const text::Disk& disk, const std::string& path);

/// Lists the materials that an OBJ uses, each once, into ListOBJMat, but for Preview. False when
/// the OBJ cannot be opened.
bool listObjMaterials(FormMatCoord& form, const text::Disk& disk, const std::string& path);

/// Leaves in ListCR2Mat what the OBJ does not use, and lists into ListMatsNotInCR2 what the figure
/// lacks. Names are compared as they stand.
void compareMaterials(FormMatCoord& form);

}  // namespace norvik::materials
