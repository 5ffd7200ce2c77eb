#pragma once
// Picture buttons, shapes and images: controls that have no state but the common one.

#include "front/control.h"

#include <string_view>

namespace norvik::front {

/// A picture that is used as a button and a drop target. At rest its background is kPictureRest;
/// tools read the background back as state.
class PictureButton : public Control {
 public:
  PictureButton(Form& form, std::string_view name)
      : Control(form, name, ControlKind::pictureButton) {
    setBack(kPictureRest);
  }

  bool active() const { return back() == kPictureActive; }
  void activate() { setBack(kPictureActive); }
  void rest() { setBack(kPictureRest); }
};

/// A rectangle or a line that frames other controls.
class Shape : public Control {
 public:
  Shape(Form& form, std::string_view name) : Control(form, name, ControlKind::shape) {}
};

/// A picture for display only.
class Image : public Control {
 public:
  Image(Form& form, std::string_view name) : Control(form, name, ControlKind::image) {}
};

}  // namespace norvik::front
