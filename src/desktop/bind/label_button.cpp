#include "desktop/bind/label_button.h"

#include "desktop/bind/choice_bindings.h"

#include <QPushButton>

namespace norvik::desktop {

QPushButton& makeLabelButton(Maker& maker, front::Label& label, QWidget& parent) {
  auto* button = new QPushButton(&parent);
  button->setAutoDefault(false);
  maker.bindings().add(std::make_unique<CommandBinding>(maker.dispatcher(), label, *button));
  return *button;
}

}  // namespace norvik::desktop
