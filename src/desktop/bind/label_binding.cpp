#include "desktop/bind/label_binding.h"

#include "desktop/theme.h"
#include "desktop/words.h"

#include <QLabel>

namespace norvik::desktop {

LabelBinding::LabelBinding(Dispatcher& dispatcher, front::Label& label, QLabel& widget)
    : WidgetBinding(dispatcher, label, widget), label_(label), text_(widget) {
  text_.setTextFormat(Qt::PlainText);
  if (!label.clicked.hasHandlers()) return;
  text_.setFocusPolicy(Qt::TabFocus);
  text_.setCursor(Qt::PointingHandCursor);
}

void LabelBinding::refresh() {
  const QString caption = shown(label_.caption());
  text_.setText(caption);
  if (label_.fore() == front::kPathEdited) {
    text_.setAccessibleDescription(QStringLiteral("edited, not saved yet"));
  } else {
    text_.setAccessibleDescription({});
  }
  paintText(text_, label_.fore());
  WidgetBinding::refresh();
}

}  // namespace norvik::desktop
