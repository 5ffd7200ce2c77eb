#pragma once
// FormLaunch: a small target for files of the desktop.

#include "front/choice_controls.h"
#include "front/form.h"
#include "front/form_start.h"
#include "front/picture_box.h"

#include <cstdint>
#include <string>

namespace norvik::tools {

class FormLaunch : public front::Form {
 public:
  FormLaunch();

  /// Gives everything the state in which the form is shown.
  void restoreStart();

  /// Empties the picture.
  void clearPicture();
  void showPicture(graphics::Surface picture);
  bool holdsPicture() const { return holdsPicture_; }

  std::uint64_t opened = 0;  ///< how many files were handed to the main form

  /// What is printed in the middle of the empty picture; empty: nothing.
  std::string printed;

  /// Files are dropped here.
  front::PictureBox Picture1{*this, "Picture1"};
  /// On: a dropped file is shown as a picture and not opened.
  front::CheckBox Check1{*this, "Check1", "Use OLE DragDrop"};

 private:
  bool holdsPicture_ = false;
  front::FormStart start_;
};

}  // namespace norvik::tools
