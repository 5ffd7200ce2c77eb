#include "obj/surgery/overlays.h"

#include "mesh/obj_number.h"

#include <algorithm>
#include <cstdint>
#include <tuple>

namespace norvik::obj {

namespace {

using graphics::Point;

constexpr front::Colour kBlue = 0xFF0000;
constexpr front::Colour kMagenta = 0xFF00FF;
constexpr std::size_t kTop = 2;

/// How far an overlay was moved.
Point offsetOf(const front::PictureBox& overlay) {
  return {toPixel(static_cast<double>(overlay.box().left - kOverlayLeft)),
          toPixel(static_cast<double>(overlay.box().top - kOverlayTop))};
}

double extent(const front::Label& label) {
  return leadingNumber(label.caption());
}

void keepEachOnce(std::vector<Point>& points) {
  const auto place = [](Point at) { return std::tuple(at.y, at.x); };
  std::sort(points.begin(), points.end(),
            [&](Point one, Point other) { return place(one) < place(other); });
  points.erase(std::unique(points.begin(), points.end()), points.end());
}

}  // namespace

void Overlays::begin() {
  end();
  const auto overlays = workshop_.form.overlays();
  const auto flatViews = workshop_.form.flatViews();
  for (std::size_t view = 0; view < overlays.size(); ++view) {
    const front::Box& size = flatViews[view]->box();
    overlays[view]->setBox({kOverlayLeft, kOverlayTop, size.width, size.height});
    overlays[view]->surface().resize(flatViews[view]->surface().width(),
                                     flatViews[view]->surface().height());
  }
}

void Overlays::addPoints(const PlanPoints& corners) {
  for (std::size_t view = 0; view < points_.size(); ++view) {
    const auto added = corners.in(view);
    points_[view].insert(points_[view].end(), added.begin(), added.end());
  }
}

void Overlays::end() {
  held_ = false;
  points_ = {};
  plotted_ = {};
  moved_ = {};
  for (front::PictureBox* overlay : workshop_.form.overlays()) overlay->hide();
}

front::PictureBox& Overlays::chosen() {
  return *workshop_.form.overlays().at(static_cast<std::size_t>(workshop_.viewMode) - 1);
}

void Overlays::showChosen() {
  for (front::PictureBox* overlay : workshop_.form.overlays()) {
    overlay->setVisible(overlay == &chosen());
  }
}

void Overlays::display() {
  for (std::size_t view = 0; view < points_.size(); ++view) {
    keepEachOnce(points_[view]);
    DisplayAddObj(view);
    workshop_.form.overlays()[view]->refresh();
  }
}

void Overlays::DisplayAddObj(std::size_t view) {
  front::PictureBox* const picture = workshop_.form.flatViews().at(view);
  if (picture == &workshop_.flatView(workshop_.viewMode)) picture->show();
  plot(view, {}, kBlue);
  MoveTopAdd(view);
  picture->refresh();
}

/// The dots of a moved overlay. They are taken away in white, whatever lay below them, and the
/// extents of the mesh put them beside the overlay: only the overlay itself shows where the mesh
/// lies.
void Overlays::MoveTopAdd(std::size_t view) {
  const front::FormOBJ& form = workshop_.form;
  const Point moved = offsetOf(*workshop_.form.overlays().at(view));
  if (moved == moved_.at(view)) return;
  plot(view, plotted_.at(view), front::kWhite);
  const double aside = extent(form.LabelBiggestX) - extent(form.LabelSmallestX);
  moved_.at(view) = moved;
  plotted_.at(view) = {toPixel(static_cast<double>(moved.x) + aside), moved.y};
  plot(view, plotted_.at(view), view == kTop ? kMagenta : kBlue);
}

void Overlays::plot(std::size_t view, Point offset, front::Colour colour) {
  graphics::Surface& surface = workshop_.form.flatViews().at(view)->surface();
  // Far off the picture no whole number holds the sum.
  const auto shifted = [](int place, int by, int size) {
    const std::int64_t sum = std::int64_t{place} + by;
    return sum >= 0 && sum < size ? static_cast<int>(sum) : -1;
  };
  for (const Point at : points_.at(view)) {
    surface.setPixel(
        {shifted(at.x, offset.x, surface.width()), shifted(at.y, offset.y, surface.height())},
        colour);
  }
}

void Overlays::press(std::size_t view, front::Mouse mouse) {
  held_ = mouse.button == front::MouseButton::left;
  heldView_ = view;
  grip_ = {mouse.x, mouse.y};
}

/// The mouse is told in the overlay's own pixels, so that each step begins where it was taken hold
/// of.
void Overlays::drag(std::size_t view, front::Mouse mouse) {
  if (!held_ || view != heldView_ || mouse.button != front::MouseButton::left) return;
  front::PictureBox& overlay = *workshop_.form.overlays().at(view);
  moveTo(view, overlay.box().left + static_cast<float>(mouse.x - grip_.x),
         overlay.box().top + static_cast<float>(mouse.y - grip_.y));
}

void Overlays::moveTo(std::size_t view, float left, float top) {
  front::PictureBox& overlay = *workshop_.form.overlays().at(view);
  overlay.setBox({left, top, overlay.box().width, overlay.box().height});
  MoveTopAdd(view);
  workshop_.form.flatViews().at(view)->refresh();
}

}  // namespace norvik::obj
