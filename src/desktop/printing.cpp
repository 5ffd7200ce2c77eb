#include "desktop/printing.h"

#include <QFontMetricsF>
#include <QPainter>

namespace norvik::desktop {

namespace {

/// Letters of one size on a printer.
struct Face {
  Face(const QString& name, qreal points, bool bold, QPrinter& printer)
      : font(makeFont(name, points, bold)), height(QFontMetricsF(font, &printer).lineSpacing()) {}

  static QFont makeFont(const QString& name, qreal points, bool bold) {
    QFont font(name.isEmpty() ? QStringLiteral("monospace") : name);
    font.setStyleHint(QFont::Monospace);
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
  }

  QFont font;
  qreal height;
};

}  // namespace

void printLines(QPrinter& printer, const QString& font, const QStringList& lines,
                int headingLines) {
  constexpr qreal kHeadingPoints = 18;
  constexpr qreal kPoints = 12;
  constexpr qreal kFootPoints = 9;
  QPainter painter;
  if (!painter.begin(&printer)) return;
  const Face heading(font, kHeadingPoints, true, printer);
  const Face body(font, kPoints, false, printer);
  const Face foot(font, kFootPoints, false, printer);
  const QRectF page = printer.pageRect(QPrinter::DevicePixel);
  const qreal bottom = page.height() - 2 * foot.height;

  int number = 1;
  const auto printNumber = [&] {
    painter.setFont(foot.font);
    painter.drawText(QRectF(0, page.height() - foot.height, page.width(), foot.height),
                     Qt::AlignHCenter, QString::number(number));
  };
  qreal top = 0;
  printNumber();
  for (int i = 0; i < lines.size(); ++i) {
    const Face& face = i < headingLines ? heading : body;
    if (top > 0 && top + face.height > bottom) {
      printer.newPage();
      ++number;
      top = 0;
      printNumber();
    }
    QString line = lines[i];
    line.replace(QLatin1Char('\t'), QStringLiteral("    "));
    painter.setFont(face.font);
    painter.drawText(QRectF(0, top, page.width(), face.height), Qt::TextSingleLine, line);
    top += face.height;
  }
}

}  // namespace norvik::desktop
