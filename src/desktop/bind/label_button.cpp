#include "desktop/bind/label_button.h"

#include "desktop/words.h"

#include <QAbstractButton>

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

}  // namespace norvik::desktop
