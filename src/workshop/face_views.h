#pragma once
// A face as it is drawn: in the three flat views, and into the list of the 3D view.

#include "mesh/display_writer.h"
#include "workshop/plan_points.h"
#include "workshop/workshop.h"

#include <cstddef>
#include <span>

namespace norvik::obj {

/// Draws the faces of a read.
class FaceViews {
 public:
  explicit FaceViews(Workshop& workshop);
  FaceViews(const FaceViews&) = delete;
  FaceViews& operator=(const FaceViews&) = delete;

  /// Throws FileError subscriptOutOfRange (9) at the first index that no vertex has, and overflow
  /// (6) at the first corner, of any place in the face, that lies beyond all pixels.
  void draw(std::span<const std::size_t> indexes);

 private:
  Workshop& workshop_;
  ViewScale scale_;
  DisplayWriter display_;
  PlanPoints corners_{scale_};
};

}  // namespace norvik::obj
