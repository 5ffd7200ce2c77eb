#pragma once
// Controls with a value: options, check boxes, sliders; and the frames that group options.

#include "front/text_controls.h"

#include <string_view>

namespace norvik::front {

/// A captioned border.
class Frame : public CaptionControl {
 public:
  Frame(Form& form, std::string_view name, std::string_view caption = {})
      : CaptionControl(form, name, ControlKind::frame, caption) {}
};

/// One of several choices. Of the options of one frame (or of none) at most one is set.
class OptionButton : public CaptionControl {
 public:
  OptionButton(Form& form, std::string_view name, std::string_view caption = {},
               const Frame* frame = nullptr)
      : CaptionControl(form, name, ControlKind::optionButton, caption), frame_(frame) {}

  bool value() const { return value_; }
  /// Setting an option clears the others of its frame.
  void setValue(bool value);

 private:
  const Frame* frame_;
  bool value_ = false;
};

/// A choice of its own; a click turns it over.
class CheckBox : public CaptionControl {
 public:
  CheckBox(Form& form, std::string_view name, std::string_view caption = {})
      : CaptionControl(form, name, ControlKind::checkBox, caption) {}

  bool value() const { return value_; }
  void setValue(bool value) { set(value_, value); }

 private:
  bool value_ = false;
};

/// A slider or scroll bar: a whole number within limits.
class Slider : public Control {
 public:
  Slider(Form& form, std::string_view name, int least, int most,
         ControlKind kind = ControlKind::slider)
      : Control(form, name, kind), least_(least), most_(most) {}

  int least() const { return least_; }
  int most() const { return most_; }
  /// Sets the limits; a value outside them moves to the nearest one.
  void setLimits(int least, int most);
  /// How far a click beside the handle moves it; 0: as the front end likes.
  int page() const { return page_; }
  void setPage(int page) { set(page_, page); }
  int value() const { return value_; }
  /// Sets the value, kept within the limits.
  void setValue(int value);

  Event<> changed{*this};  ///< the operator has moved it

 private:
  int least_;
  int most_;
  int page_ = 0;
  int value_ = 0;
};

}  // namespace norvik::front
