#pragma once
// The form that shows what the material coordinator found.

#include "front/form.h"
#include "front/list_box.h"
#include "front/text_controls.h"

namespace norvik::materials {

class FormMatCoord : public front::Form {
 public:
  FormMatCoord();

  /// Empties the three lists.
  void clearLists();

  front::Label LabelCR2Mat{*this, "LabelCR2Mat", "CR2 Materials Removed"};
  /// The figure's materials that its OBJ does not use.
  front::ListBox ListCR2Mat{*this, "ListCR2Mat"};
  front::Label LabelMatsNotInCR2{*this, "LabelMatsNotInCR2", "Materials Added to the CR2"};
  /// The OBJ's materials that the figure lacked; hidden until a run has come to its end.
  front::ListBox ListMatsNotInCR2{*this, "ListMatsNotInCR2"};
  front::Label LabelOBJMat{*this, "LabelOBJMat", "OBJ Materials"};
  /// All materials of the OBJ.
  front::ListBox ListOBJMat{*this, "ListOBJMat"};
};

}  // namespace norvik::materials
