#pragma once
// Magnifier: a window that shows the screen around the mouse pointer, enlarged.

#include "front/choice_controls.h"
#include "front/form.h"
#include "front/picture_box.h"
#include "front/plain_controls.h"
#include "front/text_controls.h"
#include "front/timer.h"

namespace norvik::tools {

class Magnifier : public front::Form {
 public:
  Magnifier();

  /// Gives everything the state in which the form is shown.
  void restoreStart();

  /// Gives the image an area's size, in pixels, and centres the cross in it. The bar stands on the
  /// area's right, the labels and the well below it.
  void fit(int width, int height);

  // The point of the screen that was in the middle of the image last.

  int LastX = 0;
  int LastY = 0;

  front::PictureBox Picture1{*this, "Picture1"};
  /// A cross over the middle of the image.
  front::Shape Shape1{*this, "Shape1"};
  /// A well of the colour under the pointer.
  front::Shape Shape2{*this, "Shape2"};
  /// How many hundredths of the image's size the part of the screen has.
  front::Slider VScroll1{*this, "VScroll1", 1, 100, front::ControlKind::scrollBar};
  front::Label Label1{*this, "Label1", "Zoom"};
  front::Label Label2{*this, "Label2"};
  front::Timer Timer1{*this, "Timer1", 50};
};

}  // namespace norvik::tools
