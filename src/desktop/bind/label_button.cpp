#include "desktop/bind/label_button.h"

#include "desktop/words.h"

#include <QPushButton>

namespace norvik::desktop {

LabelButtonBinding::LabelButtonBinding(Dispatcher& dispatcher, front::Label& label,
                                       QAbstractButton& button)
    : WidgetBinding(dispatcher, label, button, Clicks::own), label_(label), button_(button) {
  connect(&button, &QAbstractButton::clicked, this, [this] { raise(label_.clicked); });
}

void LabelButtonBinding::refresh() {
  button_.setText(shown(label_.caption()).replace(QLatin1Char('&'), QStringLiteral("&&")));
  WidgetBinding::refresh();
}

QPushButton& makeLabelButton(Maker& maker, front::Label& label, QWidget& parent) {
  auto* button = new QPushButton(&parent);
  button->setAutoDefault(false);
  maker.bindings().add(std::make_unique<LabelButtonBinding>(maker.dispatcher(), label, *button));
  return *button;
}

}  // namespace norvik::desktop
