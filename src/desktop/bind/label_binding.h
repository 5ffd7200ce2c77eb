#pragma once
// Labels on the screen.

#include "desktop/bind/widget_binding.h"
#include "front/text_controls.h"

class QLabel;

namespace norvik::desktop {

/// A label: its caption, colour and clicks. A label that does something when it is clicked can be
/// reached with the keyboard.
class LabelBinding : public WidgetBinding {
 public:
  LabelBinding(Dispatcher& dispatcher, front::Label& label, QLabel& widget);

 protected:
  void refresh() override;

 private:
  front::Label& label_;
  QLabel& text_;
};

}  // namespace norvik::desktop
