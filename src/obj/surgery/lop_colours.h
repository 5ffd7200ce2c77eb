#pragma once
// The colours by which a cut knows its groups.

#include "front/list_box.h"
#include "graphics/surface.h"

namespace norvik::obj {

/// White is no group's colour, and red is that of faces that are gone.
inline constexpr front::Colour kGoneRed = 0x0000FF;

/// A box on a picture, its borders included.
struct LopCorners {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

/// The box between two opposite corners.
LopCorners sorted(graphics::Point one, graphics::Point other);

/// ListLop: the numbers of colours. Two colours whose numbers lie within two percent of each other
/// are one.
class LopColours {
 public:
  explicit LopColours(front::ListBox& list) : list_(list) {}

  /// Adds the colours of a box that are new, but for white and red.
  void gather(const graphics::Surface& picture, const LopCorners& box);
  bool holds(front::Colour colour) const;

 private:
  front::ListBox& list_;
};

}  // namespace norvik::obj
