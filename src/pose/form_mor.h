#pragma once
// FormMOR: the morphs of a figure and the values that a MOR file gives them.

#include "front/form.h"
#include "front/form_start.h"
#include "front/list_box.h"
#include "front/text_controls.h"

#include <string>
#include <vector>

namespace norvik::pose {

class FormMOR : public front::Form {
 public:
  FormMOR() : Form("FormMOR", "PZ2 Editor -- MOR Files") {
    ListValues.hide();
    start_.remember(*this);
    static_cast<void>(takeChanges());
  }

  /// Gives everything the state in which the form is shown.
  void restoreStart() {
    start_.restore();
    actors.clear();
  }

  /// The actor of each morph, for those who look at the list; the tool needs no actors.
  std::vector<std::string> actors;

  /// The source's path.
  front::Label LabelFileName{*this, "LabelFileName"};
  /// One item for each morph and value channel, in file order, with the blank in front of its name.
  front::ListBox ListMorphs{*this, "ListMorphs"};
  /// Hidden: their values, by the same index.
  front::ListBox ListValues{*this, "ListValues"};
  front::Label LabelValue{*this, "LabelValue", "Value"};
  /// The selected item's value; Enter gives it to all items of that name.
  front::TextBox TextValue{*this, "TextValue"};
  front::Label LabelDone{*this, "LabelDone", "Done"};
  front::Label LabelCancel{*this, "LabelCancel", "Cancel"};

 private:
  front::FormStart start_;
};

}  // namespace norvik::pose
