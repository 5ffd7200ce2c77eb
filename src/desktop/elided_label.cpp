#include "desktop/elided_label.h"

#include <QStyle>
#include <QStylePainter>

namespace norvik::desktop {

QSize ElidedLabel::minimumSizeHint() const {
  constexpr int kLetters = 8;
  return {fontMetrics().averageCharWidth() * kLetters, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
  const QString part = fontMetrics().elidedText(text(), Qt::ElideLeft, contentsRect().width());
  setToolTip(part == text() ? QString() : text());
  if (part == text()) return QLabel::paintEvent(event);
  QStylePainter painter(this);
  painter.drawItemText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                       part, foregroundRole());
}

}  // namespace norvik::desktop
