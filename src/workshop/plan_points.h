#pragma once
// Where a face goes in the three flat views.

#include "front/form_obj.h"
#include "graphics/point.h"
#include "mesh/mesh.h"
#include "workshop/view_scale.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace norvik::obj {

/// A vertex by its number; throws FileError subscriptOutOfRange (9) if there is none.
const Position& vertexAt(std::span<const Position> vertices, std::size_t index);

/// The corners of a face, one after the other. The second corner takes the place of the first one
/// in the list of points, so that a flat view shows the corners from the second on: a triangle is a
/// line there and a quad a triangle, which keeps the views light.
class PlanPoints {
 public:
  explicit PlanPoints(const ViewScale& scale) : scale_(scale) {}

  /// Begins a new face.
  void begin();
  /// The next corner. Throws FileError overflow (6) for one that lies beyond all pixels.
  void add(const Position& at);
  /// All corners of a face at once, as far as they are vertices; for one that was drawn before.
  void place(std::span<const Position> vertices, std::span<const std::size_t> indexes);

  /// The points of front, side and top; those of a face of one corner are not for drawing.
  std::span<const graphics::Point> in(std::size_t view) const { return points_.at(view); }
  /// How many corners were added.
  std::size_t count() const { return count_; }

  /// Draws the face into the pictures of front, side and top.
  void draw(const std::array<front::PictureBox*, 3>& pictures, front::Colour colour) const;

 private:
  const ViewScale& scale_;
  std::array<std::vector<graphics::Point>, 3> points_;
  std::size_t count_ = 0;
};

}  // namespace norvik::obj
