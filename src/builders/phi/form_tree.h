#pragma once
// The body parts of a figure, for cutting one and all below it out of its mesh.

#include "front/form.h"
#include "front/list_box.h"
#include "front/text_controls.h"

namespace norvik::builders {

class FormTree : public front::Form {
 public:
  FormTree() : Form("FormTree", "Remove Parts by Phi Listing") {}

  /// One item a body part in file order: two blanks a step of depth, the depth, "fig", and the
  /// name.
  front::ListBox ListPhi{*this, "ListPhi"};
  front::CommandButton CommandGo{*this, "CommandGo", "Go"};
};

}  // namespace norvik::builders
