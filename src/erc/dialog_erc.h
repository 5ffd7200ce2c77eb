#pragma once
// The dialog that offers the ten kinds of link.

#include "front/choice_controls.h"
#include "front/form.h"
#include "front/text_controls.h"

namespace norvik::erc {

class DialogERC : public front::Form {
 public:
  DialogERC();

  front::Label LabelTitle{*this, "LabelTitle", "Enhanced Remote Control"};
  front::OptionButton OptionJCM{*this, "OptionJCM", "Joint Controlled Morph"};
  front::OptionButton OptionPBM{*this, "OptionPBM", "Partial Body Morph"};
  front::OptionButton OptionCM{*this, "OptionCM", "Conforming Morph"};
  front::OptionButton OptionJCJ{*this, "OptionJCJ", "Joint Controlled Joint"};
  front::OptionButton OptionJCT{*this, "OptionJCT", "Joint Controlled Translation"};
  front::OptionButton OptionMCT{*this, "OptionMCT", "Morph Controlled Translation"};
  front::OptionButton OptionTCM{*this, "OptionTCM", "Translation Controlled Morph"};
  front::OptionButton OptionMCJ{*this, "OptionMCJ", "Morph Controlled Joint"};
  front::OptionButton OptionTCJ{*this, "OptionTCJ", "Translation Controlled Joint"};
  front::OptionButton OptionMCM{*this, "OptionMCM", "Morph Controlled Morph"};
  /// Goes on to the choices of the link.
  front::Label LabelDone{*this, "LabelDone", "Ready"};
  front::Label LabelCancel{*this, "LabelCancel", "Cancel"};
};

}  // namespace norvik::erc
