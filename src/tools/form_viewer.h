#pragma once
// FormViewer: a texture map in a window of its own.

#include "front/choice_controls.h"
#include "front/form.h"
#include "front/picture_box.h"

#include <cstdint>

namespace norvik::tools {

class FormViewer : public front::Form {
 public:
  FormViewer();

  /// Gives everything its designed size: the form fills a screen of 800 by 600.
  void restoreStart();

  /// Shows a picture from its top left corner and lets the bars reach what does not fit. A picture
  /// of no pixels empties the window.
  void showPicture(graphics::Surface picture);
  /// Moves the picture to where the bars stand.
  void scroll();

  std::uint64_t shownPictures = 0;  ///< how many were shown so far

  /// The window, as it were, through which the picture is seen.
  front::PictureBox picParent{*this, "picParent"};
  /// The picture; its place is one in picParent.
  front::PictureBox picChild{*this, "picChild"};
  // They count in pixels. One that has nowhere to go is disabled.
  front::Slider vsc{*this, "vsc", 0, kMostOfBar, front::ControlKind::scrollBar};
  front::Slider HScroll1{*this, "HScroll1", 0, kMostOfBar, front::ControlKind::scrollBar};

 private:
  static constexpr int kMostOfBar = 32767;

  /// One axis: how far the picture reaches beyond the window.
  struct Axis {
    bool overflows = false;  ///< by more than a bar can count
  };
  static Axis setBar(front::Slider& bar, float picture, float inner);
  static float offset(const front::Slider& bar, Axis axis, float inner);

  Axis down_;
  Axis across_;
};

}  // namespace norvik::tools
