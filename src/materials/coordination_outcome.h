#pragma once
// What became of the materials that the coordinator's lists name. Its test of a figure's lines is
// blunt, so that the lists do not tell all.

#include "materials/form_mat_coord.h"

#include <string_view>

namespace norvik::materials {

/// Whether a material of ListCR2Mat is still in the figure: lines that hold "Material" are never
/// tested.
bool stayedInFigure(std::string_view name);

/// Whether a material of ListOBJMat, which the figure had and should have kept, went along with a
/// removed one whose name is the end of its own.
bool wentAlong(const FormMatCoord& form, std::string_view name);

}  // namespace norvik::materials
