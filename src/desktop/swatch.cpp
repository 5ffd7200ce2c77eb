#include "desktop/swatch.h"

#include "desktop/theme.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace norvik::desktop {

namespace {

constexpr int kChip = 16;
constexpr int kGap = 8;

}  // namespace

QSize Swatch::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  return {kChip + 3 * kGap + metrics.horizontalAdvance(text()), metrics.height() + 12};
}

void Swatch::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QStyleOptionButton option;
  option.initFrom(this);
  option.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
  painter.drawControl(QStyle::CE_PushButton, option);

  const QRectF chip(kGap, (height() - kChip) / 2.0, kChip, kChip);
  const QColor shade = property("shade").value<QColor>();
  const bool none = shade == toColor(front::kPictureRest) || !shade.isValid();
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(none ? QBrush(palette().color(QPalette::Mid), Qt::BDiagPattern) : QBrush(shade));
  painter.drawRoundedRect(chip, 3, 3);
  painter.setPen(
      palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
  painter.drawText(rect().adjusted(kChip + 2 * kGap, 0, -kGap / 2, 0),
                   Qt::AlignVCenter | Qt::AlignLeft, text());
}

}  // namespace norvik::desktop
