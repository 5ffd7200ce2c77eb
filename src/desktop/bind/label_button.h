#pragma once
// Labels that are buttons.

#include "desktop/bind/widget_binding.h"
#include "desktop/maker.h"
#include "front/text_controls.h"

class QAbstractButton;
class QPushButton;

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

/// A push button with a label's caption and clicks. It is not the window's default one.
QPushButton& makeLabelButton(Maker& maker, front::Label& label, QWidget& parent);

}  // namespace norvik::desktop
