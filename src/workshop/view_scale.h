#pragma once
// From mesh units to the pixels of the views.

#include "front/form_obj.h"
#include "graphics/surface.h"
#include "mesh/mesh.h"

#include <array>

namespace norvik::obj {

/// Twips to a pixel of every screen that the program meets.
inline constexpr double kTwipsPerPixel = 15;

/// The nearest pixel, halves to the even one. Throws FileError overflow (6) for a place that no
/// whole number holds.
int toPixel(double place);

/// The factors of the mesh in view. With pictures of the same size they are 6, and a mesh that is
/// one unit high fills a view.
struct ViewScale {
  explicit ViewScale(const front::FormOBJ& form);

  double FactorX;
  double FactorY;
  double width;  ///< of PictureObjViewer2, in pixels
  double height;

  /// Where a corner of a face goes in front, side and top.
  std::array<graphics::Point, 3> points(const Position& at) const {
    return {frontPoint(at), sidePoint(at), topPoint(at)};
  }
  /// Where its first corner goes, which has formulas of its own.
  std::array<graphics::Point, 3> firstPoints(const Position& at) const {
    return {firstFrontPoint(at), firstSidePoint(at), firstTopPoint(at)};
  }

  /// Where a corner goes in the 3D view.
  Position inSpace(const Position& at, bool first) const;

  graphics::Point firstFrontPoint(const Position& at) const;
  graphics::Point firstSidePoint(const Position& at) const;
  graphics::Point firstTopPoint(const Position& at) const;

  /// The row of the top view in which the cut looks for a vertex: that of its place, unless it lies
  /// behind the middle.
  int lopTopRow(const Position& at) const;

  graphics::Point frontPoint(const Position& at) const;
  graphics::Point sidePoint(const Position& at) const;
  graphics::Point topPoint(const Position& at) const;
};

}  // namespace norvik::obj
