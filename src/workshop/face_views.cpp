#include "workshop/face_views.h"

namespace norvik::obj {

FaceViews::FaceViews(Workshop& workshop)
    : workshop_(workshop), scale_(workshop.form), display_(workshop.mesh.display) {}

void FaceViews::draw(std::span<const std::size_t> indexes) {
  corners_.begin();
  display_.beginFace();
  for (const std::size_t index : indexes) {
    const Position& at = vertexAt(workshop_.mesh.vertices, index);
    const bool first = corners_.count() == 0;
    corners_.add(at);
    display_.addCorner(scale_.inSpace(at, first));
  }
  if (workshop_.form.OptionNoColors.value()) workshop_.fill = graphics::paletteColour(kPlainFill);
  corners_.draw(workshop_.form.flatViews(), workshop_.fill);
}

}  // namespace norvik::obj
