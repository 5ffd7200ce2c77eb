#include "workshop/face_views.h"

#include "text/file_error.h"

namespace norvik::obj {

FaceViews::FaceViews(Workshop& workshop)
    : workshop_(workshop), scale_(workshop.form), display_(workshop.mesh.display) {}

void FaceViews::draw(std::span<const std::size_t> indexes) {
  const auto& vertices = workshop_.mesh.vertices;
  for (auto& corners : corners_) corners.clear();
  display_.beginFace();
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    const std::size_t index = indexes[i];
    if (index == 0 || index > vertices.size()) {
      throw text::FileError(text::ErrorNumber::subscriptOutOfRange);
    }
    const Position& at = vertices[index - 1];
    const bool first = i == 0;
    // The second corner's points take the places of the first one's.
    if (i == 1) {
      for (auto& corners : corners_) corners.pop_back();
    }
    corners_[0].push_back(first ? scale_.firstFrontPoint(at) : scale_.frontPoint(at));
    corners_[1].push_back(first ? scale_.firstSidePoint(at) : scale_.sidePoint(at));
    corners_[2].push_back(first ? scale_.firstTopPoint(at) : scale_.topPoint(at));
    display_.addCorner({static_cast<float>(at.x * scale_.FactorX),
                        static_cast<float>(at.y * scale_.FactorY),
                        static_cast<float>(at.z * (first ? scale_.FactorY : scale_.FactorX))});
  }
  if (workshop_.form.OptionNoColors.value()) workshop_.fill = graphics::paletteColour(kPlainFill);
  // A polygon has one corner less than its face.
  if (indexes.size() < 2) return;
  const auto views = workshop_.form.flatViews();
  for (std::size_t view = 0; view < views.size(); ++view) {
    views[view]->surface().polygon(corners_[view], workshop_.fill);
  }
}

}  // namespace norvik::obj
