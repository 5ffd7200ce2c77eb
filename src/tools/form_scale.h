#pragma once
// FormScale: the size of a sheet of graph paper, and the sheet.

#include "front/form.h"
#include "front/form_start.h"
#include "front/picture_box.h"
#include "front/text_controls.h"

namespace norvik::tools {

class FormScale : public front::Form {
 public:
  FormScale();

  /// Gives everything the state in which the form is shown: the boxes empty, no sheet.
  void restoreStart();

  front::Label LabelSize{*this, "LabelSize", "Horizontal size in pixels"};
  front::TextBox TextHorizontal{*this, "TextHorizontal"};
  front::Label LabelVertical{*this, "LabelVertical", "Vertical Size in Pixels"};
  front::TextBox TextVertical{*this, "TextVertical"};
  /// The sheet.
  front::PictureBox Picture1{*this, "Picture1"};

 private:
  front::FormStart start_;
};

}  // namespace norvik::tools
