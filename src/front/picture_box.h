#pragma once
// Pictures that the tools draw on.

#include "front/control.h"
#include "graphics/surface.h"

#include <string_view>

namespace norvik::front {

/// A drawing surface on a form. What is drawn comes on view when the tool refreshes the picture.
class PictureBox : public Control {
 public:
  /// Without a size it has no pixels yet.
  PictureBox(Form& form, std::string_view name, int width = 0, int height = 0)
      : Control(form, name, ControlKind::drawingSurface), surface_(width, height) {
    setBox({0, 0, static_cast<float>(width), static_cast<float>(height)});
  }

  const graphics::Surface& surface() const { return surface_; }
  graphics::Surface& surface() { return surface_; }

  /// Brings what was drawn on view.
  void refresh() { touch(); }
  /// Wipes the picture, on view too.
  void clear() {
    surface_.clear();
    touch();
  }
  /// Gives the picture another size, which wipes it.
  void resize(int width, int height) {
    surface_.resize(width, height);
    setBox({box().left, box().top, static_cast<float>(width), static_cast<float>(height)});
  }

 private:
  graphics::Surface surface_;
};

}  // namespace norvik::front
