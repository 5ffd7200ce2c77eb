#include "desktop/bind/choice_bindings.h"

#include "desktop/words.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QGroupBox>

namespace norvik::desktop {

namespace {

/// A caption as a button shows it: an ampersand is one, not a mnemonic.
QString buttonText(const std::string& caption) {
  return shown(caption).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

}  // namespace

OptionBinding::OptionBinding(Dispatcher& dispatcher, front::OptionButton& option,
                             QAbstractButton& button)
    : WidgetBinding(dispatcher, option, button, Clicks::own), option_(option), button_(button) {
  button.setAutoExclusive(false);  // the control knows its group
  connect(&button, &QAbstractButton::clicked, this, [this] {
    if (!accepts()) return;
    option_.setValue(true);
    update();
    raise(option_.clicked);
  });
}

void OptionBinding::refresh() {
  button_.setText(buttonText(option_.caption()));
  button_.setChecked(option_.value());
  WidgetBinding::refresh();
}

CheckBinding::CheckBinding(Dispatcher& dispatcher, front::CheckBox& check, QAbstractButton& button)
    : WidgetBinding(dispatcher, check, button, Clicks::own), check_(check), button_(button) {
  connect(&button, &QAbstractButton::clicked, this, [this](bool checked) {
    if (!accepts()) return;
    check_.setValue(checked);
    raise(check_.clicked);
  });
}

void CheckBinding::refresh() {
  button_.setText(buttonText(check_.caption()));
  button_.setChecked(check_.value());
  WidgetBinding::refresh();
}

CommandBinding::CommandBinding(Dispatcher& dispatcher, front::CaptionControl& command,
                               QAbstractButton& button)
    : WidgetBinding(dispatcher, command, button, Clicks::own), command_(command), button_(button) {
  connect(&button, &QAbstractButton::clicked, this, [this] { raise(command_.clicked); });
}

void CommandBinding::refresh() {
  button_.setText(buttonText(command_.caption()));
  WidgetBinding::refresh();
}

SliderBinding::SliderBinding(Dispatcher& dispatcher, front::Slider& slider, QAbstractSlider& widget)
    : WidgetBinding(dispatcher, slider, widget, Clicks::own), slider_(slider), drawn_(widget) {
  connect(&widget, &QAbstractSlider::valueChanged, this, [this](int value) {
    if (!accepts()) return;
    slider_.setValue(value);
    raise(slider_.changed);
  });
}

void SliderBinding::refresh() {
  drawn_.setRange(slider_.least(), slider_.most());
  if (slider_.page() > 0) drawn_.setPageStep(slider_.page());
  drawn_.setValue(slider_.value());
  WidgetBinding::refresh();
}

FrameBinding::FrameBinding(Dispatcher& dispatcher, front::Frame& frame, QGroupBox& group)
    : WidgetBinding(dispatcher, frame, group, Clicks::own), frame_(frame), group_(group) {}

void FrameBinding::refresh() {
  if (!frame_.caption().empty()) group_.setTitle(buttonText(frame_.caption()));
  WidgetBinding::refresh();
}

}  // namespace norvik::desktop
