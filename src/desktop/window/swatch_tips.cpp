#include "desktop/window/swatch_tips.h"

#include "desktop/words.h"
#include "text/number_text.h"

#include <QAbstractButton>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace norvik::desktop {

namespace {

constexpr double kFileScale = 256;
constexpr double kMost = 255;

QString tipOf(const front::Opening& opening, const front::ListBox& colours, const QString& action) {
  // Before the first click the swatches show the first material.
  const int index = std::max(opening.ListMaterials.index(), 0);
  if (opening.ListMaterials.count() == 0 || colours.item(index).empty()) return action;
  QStringList shownValues;
  QStringList fileValues;
  for (const QString& part : shown(colours.item(index)).split(QLatin1Char(' '))) {
    const double value = text::value(part.toStdString());
    shownValues += QString::number(std::lround(std::clamp(value, 0.0, kMost)));
    fileValues += QString::number(value / kFileScale, 'g', 7);
  }
  return QStringLiteral("%1: %2 (%3 in the file)\n%4")
      .arg(shown(opening.ListMaterials.item(index)), shownValues.join(QStringLiteral(", ")),
           fileValues.join(QLatin1Char(' ')), action);
}

}  // namespace

void keepSwatchTip(Maker& maker, front::Opening& opening, front::PictureButton& picture,
                   front::ListBox& colours, QAbstractButton& swatch) {
  const QString action = swatch.toolTip();
  maker.watch({&opening.ListMaterials, &colours, &picture}, [&opening, &colours, &swatch, action] {
    swatch.setToolTip(tipOf(opening, colours, action));
  });
}

}  // namespace norvik::desktop
