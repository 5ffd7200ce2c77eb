#include "desktop/bind/picture_binding.h"

#include "desktop/theme.h"

#include <QAbstractButton>

namespace norvik::desktop {

PictureBinding::PictureBinding(Dispatcher& dispatcher, front::Control& picture,
                               QAbstractButton& button)
    : WidgetBinding(dispatcher, picture, button), button_(button) {
  button.setCheckable(true);
  // The control alone says whether the tool is armed; a click that changed nothing shows nothing.
  connect(&button, &QAbstractButton::toggled, this, [this] {
    if (!refreshing()) update();
  });
}

void PictureBinding::refresh() {
  button_.setChecked(control().back() == front::kPictureActive);
  button_.setProperty("shade", toColor(control().back()));
  button_.update();
  WidgetBinding::refresh();
}

}  // namespace norvik::desktop
