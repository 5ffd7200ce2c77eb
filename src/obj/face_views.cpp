#include "obj/face_views.h"

#include "text/file_error.h"

namespace norvik::obj {

FaceViews::FaceViews(Workshop& workshop)
    : workshop_(workshop), scale_(workshop.form), display_(workshop.mesh.display) {}

void FaceViews::draw(std::span<const std::size_t> indexes) {
  const auto& vertices = workshop_.mesh.vertices;
  for (auto& corners : corners_) corners.clear();
  display_.beginFace();
  bool first = true;
  for (const std::size_t index : indexes) {
    if (index == 0 || index > vertices.size()) {
      throw text::FileError(text::ErrorNumber::subscriptOutOfRange);
    }
    const Position& at = vertices[index - 1];
    display_.addCorner({static_cast<float>(at.x * scale_.FactorX),
                        static_cast<float>(at.y * scale_.FactorY),
                        static_cast<float>(at.z * (first ? scale_.FactorY : scale_.FactorX))});
    if (!first) {
      corners_[0].push_back(scale_.frontPoint(at));
      corners_[1].push_back(scale_.sidePoint(at));
      corners_[2].push_back(scale_.topPoint(at));
    }
    first = false;
  }
  if (workshop_.form.OptionNoColors.value()) workshop_.fill = graphics::paletteColour(kPlainFill);
  const auto views = workshop_.form.flatViews();
  for (std::size_t view = 0; view < views.size(); ++view) {
    if (!corners_[view].empty()) views[view]->surface().polygon(corners_[view], workshop_.fill);
  }
}

}  // namespace norvik::obj
