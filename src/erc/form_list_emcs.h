#pragma once
// The form that lists a figure's channels and takes a new ratio for a link.

#include "front/form.h"
#include "front/list_box.h"
#include "front/text_controls.h"

#include <string>
#include <vector>

namespace norvik::erc {

class FormListEMCs : public front::Form {
 public:
  FormListEMCs();

  /// Empties the form for another showing.
  void restoreStart();

  /// By the index of a ratio's item plus one: "Delta Control Ratio: ", the ratio, "#" and the
  /// number of its line in the file. Empty for other items; no longer than the last ratio's needs.
  std::vector<std::string> RatioLines;

  /// The path of the file worked on; the tools read it back from here.
  front::Label LabelTitle{*this, "LabelTitle"};
  front::ListBox ListEMCs{*this, "ListEMCs"};
  front::Label Label1{*this, "Label1", "Enter a new ratio and hit Enter"};
  front::TextBox Text1{*this, "Text1"};
};

}  // namespace norvik::erc
