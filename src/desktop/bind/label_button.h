#pragma once
// Labels that are buttons.

#include "desktop/bind/widget_binding.h"
#include "front/text_controls.h"

class QAbstractButton;

namespace norvik::desktop {

/// A label that does something when it is clicked, drawn as a button with its caption.
class LabelButtonBinding : public WidgetBinding {
 public:
  LabelButtonBinding(Dispatcher& dispatcher, front::Label& label, QAbstractButton& button);

 protected:
  void refresh() override;

 private:
  front::Label& label_;
  QAbstractButton& button_;
};

}  // namespace norvik::desktop
