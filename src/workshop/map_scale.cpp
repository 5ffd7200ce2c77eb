#include "workshop/map_scale.h"

#include "workshop/view_scale.h"

namespace norvik::obj {

namespace {

double inPixels(float size) {
  constexpr double kDesignTwips = 15;
  return static_cast<double>(size) * kDesignTwips / kTwipsPerPixel;
}

}  // namespace

MapScale::MapScale(const front::FormOBJ& form, const front::PictureBox& picture)
    : UVFactorX(inPixels(picture.box().width)),
      UVFactorY(inPixels(picture.box().height)),
      height(static_cast<double>(picture.box().height)) {
  constexpr double kOffCentre = -0.008;
  constexpr double kOffTop = -0.004;
  const ViewScale views(form);
  HalfX = kOffCentre * views.FactorX / 2;
  ShiftY = kOffTop * views.FactorY;
}

graphics::Point MapScale::at(double u, double v) const {
  return {toPixel(u * UVFactorX + HalfX), toPixel(height - (v * UVFactorY + ShiftY))};
}

graphics::Point MapScale::atTurned(double u, double v) const {
  return {toPixel(u * UVFactorX + HalfX), toPixel(v * UVFactorY + ShiftY)};
}

}  // namespace norvik::obj
