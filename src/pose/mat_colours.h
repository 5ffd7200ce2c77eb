#pragma once
// The colours of a MAT file: what a material has, and what it gets.

#include "front/session.h"
#include "pose/form_pz2.h"

#include <optional>
#include <string_view>

namespace norvik::pose {

/// The colour of an entry of ListMATColors, its numbers times 256 and 255 at the most; none if one
/// of them is below 0.
std::optional<front::Colour> entryColour(std::string_view entry);

/// Hangs the picking on ListMaterialsMAT. A click shows the material's colour in ShapePresentColor;
/// a right click asks for a new one, which goes into ListMATColors; a double click chooses the
/// material, and leaves its colour where it is: colours set later land on another material. A click
/// on LabelChangeColor or Frame1 tells the operator so.
void wireMatColours(front::Session& session, FormPZ2& form);

}  // namespace norvik::pose
