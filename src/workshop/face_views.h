#pragma once
// A face as it is drawn: in the three flat views, and into the list of the 3D view.

#include "mesh/display_writer.h"
#include "workshop/view_scale.h"
#include "workshop/workshop.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace norvik::obj {

/// Draws the faces of a read. The second corner of a face takes the place of the first one in the
/// list of points, so that a flat view shows the corners from the second on: a triangle is a line
/// there and a quad a triangle, which keeps the views light.
class FaceViews {
 public:
  explicit FaceViews(Workshop& workshop);

  /// Throws FileError subscriptOutOfRange (9) at the first index that no vertex has, and overflow
  /// (6) at the first corner, of any place in the face, that lies beyond all pixels.
  void draw(std::span<const std::size_t> indexes);

 private:
  Workshop& workshop_;
  ViewScale scale_;
  DisplayWriter display_;
  std::array<std::vector<graphics::Point>, 3> corners_;  ///< front, side, top
};

}  // namespace norvik::obj
