#include "workshop/view_scale.h"

#include "text/file_error.h"

#include <cmath>
#include <limits>

namespace norvik::obj {

namespace {

constexpr double kShare = 6;  // of a view's size is one unit of the 3D view

double factor(float picture, double view) {
  constexpr double kDesignTwips = 15;
  return (static_cast<double>(picture) * kDesignTwips / kTwipsPerPixel) / (view / kShare);
}

}  // namespace

int toPixel(double place) {
  if (!(std::fabs(place) < static_cast<double>(std::numeric_limits<int>::max()))) {
    throw text::FileError(text::ErrorNumber::overflow);
  }
  return static_cast<int>(std::lrint(place));
}

ViewScale::ViewScale(const front::FormOBJ& form)
    : width(static_cast<double>(form.PictureObjViewer2.box().width)),
      height(static_cast<double>(form.PictureObjViewer2.box().height)) {
  FactorX = factor(form.PictureOBJViewer.box().width, width);
  FactorY = factor(form.PictureOBJViewer.box().height, height);
}

Position ViewScale::inSpace(const Position& at, bool first) const {
  return {static_cast<float>(at.x * FactorX), static_cast<float>(at.y * FactorY),
          static_cast<float>(at.z * (first ? FactorY : FactorX))};
}

graphics::Point ViewScale::firstFrontPoint(const Position& at) const {
  return {toPixel(width / kShare * (static_cast<double>(at.x) * FactorX) + width / 2),
          toPixel(height - static_cast<double>(at.y) * FactorY * FactorY)};
}

graphics::Point ViewScale::firstSidePoint(const Position& at) const {
  return {toPixel(width / kShare * (static_cast<double>(at.z) * FactorY) + width / 2),
          toPixel(height - static_cast<double>(at.y) * FactorY * FactorY)};
}

graphics::Point ViewScale::firstTopPoint(const Position& at) const {
  return {toPixel(width / kShare * (static_cast<double>(at.x) * FactorX) + width / 2),
          toPixel(static_cast<double>(at.z) * FactorY * FactorY + height / 2)};
}

graphics::Point ViewScale::frontPoint(const Position& at) const {
  return {toPixel(width / kShare * (static_cast<double>(at.x) * FactorX) + width / 2),
          toPixel(height - height / kShare * (static_cast<double>(at.y) * FactorY))};
}

graphics::Point ViewScale::sidePoint(const Position& at) const {
  return {toPixel(width / kShare * (static_cast<double>(at.z) * FactorX) + width / 2),
          toPixel(height - height / kShare * (static_cast<double>(at.y) * FactorY))};
}

graphics::Point ViewScale::topPoint(const Position& at) const {
  return {toPixel(width / kShare * (static_cast<double>(at.x) * FactorX) + width / 2),
          toPixel(height / kShare * (static_cast<double>(at.z) * FactorY) + height / 2)};
}

int ViewScale::lopTopRow(const Position& at) const {
  const double z = static_cast<double>(at.z) * FactorY;
  return toPixel(z < 0 ? -z * (width / kShare) - width / 2 : width / kShare * z + width / 2);
}

}  // namespace norvik::obj
