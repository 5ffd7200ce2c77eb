#pragma once
// From texture coordinates to the pixels of a map picture.

#include "front/form_obj.h"
#include "graphics/point.h"

namespace norvik::obj {

/// The factors of PictureUVMap and PictureSecMap: a picture holds the coordinates from 0 to 1, and
/// all lies a little to the left and above.
struct MapScale {
  MapScale(const front::FormOBJ& form, const front::PictureBox& picture);

  double UVFactorX;
  double UVFactorY;
  double HalfX;
  double ShiftY;
  double height;  ///< of the picture

  /// Where a coordinate goes, v upwards. Throws FileError overflow (6) beyond all pixels.
  graphics::Point at(double u, double v) const;
  /// The same with v downwards, as the secondary map has it.
  graphics::Point atTurned(double u, double v) const;
};

}  // namespace norvik::obj
