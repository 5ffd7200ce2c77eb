#include "desktop/printing.h"

#include <QFontMetricsF>
#include <QPainter>

namespace norvik::desktop {

void printLines(QPrinter& printer, const QString& font, const QStringList& lines) {
  constexpr qreal kPoints = 9;
  QFont face(font.isEmpty() ? QStringLiteral("monospace") : font);
  face.setPointSizeF(kPoints);
  QPainter painter;
  if (!painter.begin(&printer)) return;
  painter.setFont(face);
  const QFontMetricsF metrics(face, &printer);
  const QRectF page = printer.pageRect(QPrinter::DevicePixel);
  const qreal height = metrics.lineSpacing();
  const QRectF area(0, 0, page.width(), page.height() - 2 * height);
  const int perPage = std::max(1, static_cast<int>(area.height() / height));

  for (int i = 0; i < lines.size(); ++i) {
    const int row = i % perPage;
    if (row == 0) {
      if (i > 0) printer.newPage();
      painter.drawText(QRectF(0, page.height() - height, page.width(), height), Qt::AlignHCenter,
                       QString::number(i / perPage + 1));
    }
    QString line = lines[i];
    line.replace(QLatin1Char('\t'), QStringLiteral("    "));
    painter.drawText(QRectF(0, row * height, area.width(), height), Qt::TextSingleLine, line);
  }
}

}  // namespace norvik::desktop
