#include "materials/coordination_outcome.h"

#include "figure/material_block.h"
#include "materials/coordinator_passes.h"

#include <algorithm>

namespace norvik::materials {

bool stayedInFigure(std::string_view name) {
  return text::holds(name, "Material");
}

bool wentAlong(const FormMatCoord& form, std::string_view name) {
  const Names& added = form.ListMatsNotInCR2.items();
  const bool wasInFigure = std::find(added.begin(), added.end(), name) == added.end();
  const std::string line = std::string{figure::kMaterialLine} + " " + std::string{name};
  return wasInFigure && !stayedInFigure(name) && figure::endsInOneOf(line, form.ListCR2Mat.items());
}

}  // namespace norvik::materials
