#include "front/form_start.h"

#include "front/choice_controls.h"
#include "front/list_box.h"

#include <string>

namespace norvik::front {

namespace {

using Steps = std::vector<std::function<void()>>;

/// A step that gives `control`, if it is of that kind, the value again that it has now.
template <typename Kind, typename Get, typename Set>
void rememberValue(Steps& steps, Control& control, Get get, Set set) {
  auto* kind = dynamic_cast<Kind*>(&control);
  if (kind == nullptr) return;
  steps.push_back([kind, value = get(*kind), set] { set(*kind, value); });
}

void rememberCommon(Steps& steps, Control& control) {
  steps.push_back([&control, visible = control.visible(), enabled = control.enabled(),
                   fore = control.fore(), back = control.back(), tip = control.tip()] {
    control.setVisible(visible);
    control.setEnabled(enabled);
    control.setFore(fore);
    control.setBack(back);
    control.setTip(tip);
  });
}

}  // namespace

void FormStart::remember(const Form& form) {
  for (Control* control : form.controls()) {
    rememberCommon(steps_, *control);
    rememberValue<ListBox>(
        steps_, *control, [](const ListBox& list) { return list.items(); },
        [](ListBox& list, const std::vector<std::string>& items) {
          list.clear();
          for (const std::string& item : items) list.add(item);
        });
    rememberValue<CaptionControl>(
        steps_, *control, [](const CaptionControl& label) { return label.caption(); },
        [](CaptionControl& label, const std::string& caption) { label.setCaption(caption); });
    rememberValue<TextBox>(
        steps_, *control, [](const TextBox& box) { return box.text(); },
        [](TextBox& box, const std::string& text) {
          box.setText(text);
          box.setCaret(0, 0);
        });
    rememberValue<OptionButton>(
        steps_, *control, [](const OptionButton& option) { return option.value(); },
        [](OptionButton& option, bool value) { option.setValue(value); });
    rememberValue<CheckBox>(
        steps_, *control, [](const CheckBox& check) { return check.value(); },
        [](CheckBox& check, bool value) { check.setValue(value); });
    rememberValue<Slider>(
        steps_, *control, [](const Slider& slider) { return slider.value(); },
        [](Slider& slider, int value) { slider.setValue(value); });
  }
}

void FormStart::restore() const {
  for (const auto& step : steps_) step();
}

}  // namespace norvik::front
