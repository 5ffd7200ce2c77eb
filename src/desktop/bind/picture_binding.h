#pragma once
// Picture buttons on the screen, and the labels that are pictures.

#include "desktop/bind/widget_binding.h"

class QAbstractButton;

namespace norvik::desktop {

/// A button with a picture. While its control has the colour of an armed tool the button is
/// checked; with any other colour than the resting one it shows that colour.
class PictureBinding : public WidgetBinding {
 public:
  PictureBinding(Dispatcher& dispatcher, front::Control& picture, QAbstractButton& button);

 protected:
  void refresh() override;

 private:
  QAbstractButton& button_;
};

}  // namespace norvik::desktop
