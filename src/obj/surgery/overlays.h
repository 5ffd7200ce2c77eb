#pragma once
// The pictures in which a second mesh is moved over the one in view.

#include "workshop/plan_points.h"
#include "workshop/workshop.h"

#include <array>
#include <vector>

namespace norvik::obj {

/// Where an overlay comes up, in pixels: from there a mesh lies where it lies in its own file.
inline constexpr float kOverlayLeft = 10;
inline constexpr float kOverlayTop = 0;

/// The three overlays, and the points that they move. A drag of an overlay moves it with the mouse;
/// its points are dots in the flat view below.
class Overlays {
 public:
  explicit Overlays(Workshop& workshop) : workshop_(workshop) {}

  /// Puts empty overlays, of the flat views' size, in the place where they come up.
  void begin();
  /// The points of a face.
  void addPoints(const PlanPoints& corners);
  /// Forgets the points and takes the overlays off the screen.
  void end();

  /// Of the view that is chosen.
  front::PictureBox& chosen();
  /// Has the chosen overlay on view, with the flat view below it.
  void showChosen();
  /// Plots each view's points in its flat picture, in blue.
  void display();

  /// The mouse on an overlay of a view, counted from 0.
  void press(std::size_t view, front::Mouse mouse);
  void drag(std::size_t view, front::Mouse mouse);
  void release() { held_ = false; }
  /// Moves an overlay, and its dots with it.
  void moveTo(std::size_t view, float left, float top);

 private:
  void DisplayAddObj(std::size_t view);
  void MoveTopAdd(std::size_t view);
  void plot(std::size_t view, graphics::Point offset, front::Colour colour);

  Workshop& workshop_;
  std::array<std::vector<graphics::Point>, 3> points_;
  std::array<graphics::Point, 3> moved_{};    ///< how far each overlay was when its dots were moved
  std::array<graphics::Point, 3> plotted_{};  ///< how far the dots on view are from their points
  bool held_ = false;
  std::size_t heldView_ = 0;
  graphics::Point grip_{};  ///< of the overlay, where it is held
};

}  // namespace norvik::obj
