#pragma once
// Buttons with a caption, and controls with a value.

#include "desktop/bind/widget_binding.h"
#include "front/choice_controls.h"

class QAbstractButton;
class QAbstractSlider;
class QGroupBox;

namespace norvik::desktop {

class OptionBinding : public WidgetBinding {
 public:
  OptionBinding(Dispatcher& dispatcher, front::OptionButton& option, QAbstractButton& button);

 protected:
  void refresh() override;

 private:
  front::OptionButton& option_;
  QAbstractButton& button_;
};

class CheckBinding : public WidgetBinding {
 public:
  CheckBinding(Dispatcher& dispatcher, front::CheckBox& check, QAbstractButton& button);

 protected:
  void refresh() override;

 private:
  front::CheckBox& check_;
  QAbstractButton& button_;
};

/// A command, or a label that is clicked, as a button.
class CommandBinding : public WidgetBinding {
 public:
  CommandBinding(Dispatcher& dispatcher, front::CaptionControl& command, QAbstractButton& button);

 protected:
  void refresh() override;

 private:
  front::CaptionControl& command_;
  QAbstractButton& button_;
};

/// A slider or a scroll bar.
class SliderBinding : public WidgetBinding {
 public:
  SliderBinding(Dispatcher& dispatcher, front::Slider& slider, QAbstractSlider& widget);

 protected:
  void refresh() override;

 private:
  front::Slider& slider_;
  QAbstractSlider& drawn_;
};

class FrameBinding : public WidgetBinding {
 public:
  FrameBinding(Dispatcher& dispatcher, front::Frame& frame, QGroupBox& group);

 protected:
  void refresh() override;

 private:
  front::Frame& frame_;
  QGroupBox& group_;
};

}  // namespace norvik::desktop
