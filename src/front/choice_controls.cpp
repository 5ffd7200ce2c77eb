#include "front/choice_controls.h"

#include "front/form.h"

#include <algorithm>

namespace norvik::front {

void OptionButton::setValue(bool value) {
  if (value) {
    for (Control* control : form().controls()) {
      auto* other = dynamic_cast<OptionButton*>(control);
      if (other != nullptr && other != this && other->frame_ == frame_) other->setValue(false);
    }
  }
  set(value_, value);
}

void Slider::setLimits(int least, int most) {
  set(least_, least);
  set(most_, std::max(least, most));
  setValue(value_);
}

void Slider::setValue(int value) {
  set(value_, std::clamp(value, least_, most_));
}

}  // namespace norvik::front
