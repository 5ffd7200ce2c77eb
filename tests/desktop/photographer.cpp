#include "desktop/photographer.h"

#include <QApplication>
#include <QHash>
#include <QPixmap>
#include <QScreen>
#include <QtTest>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <vector>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;

int distance(QRgb one, QRgb other) {
  return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
         std::abs(qBlue(one) - qBlue(other));
}

/// The most frequent colours of a picture, and of the others those that are farthest from all.
QList<QRgb> paletteOf(const QHash<QRgb, int>& counts) {
  constexpr std::size_t kMost = 256;
  constexpr std::size_t kFrequent = 96;
  std::vector<std::pair<int, QRgb>> colours;
  for (auto entry = counts.begin(); entry != counts.end(); ++entry) {
    colours.emplace_back(-entry.value(), entry.key());
  }
  std::sort(colours.begin(), colours.end());
  QList<QRgb> palette;
  std::vector<int> away(colours.size(), std::numeric_limits<int>::max());
  std::size_t next = 0;
  while (palette.size() < static_cast<qsizetype>(std::min(colours.size(), kMost))) {
    palette << colours[next].second;
    for (std::size_t i = 0; i < colours.size(); ++i) {
      away[i] = std::min(away[i], distance(colours[i].second, palette.back()));
    }
    if (++next >= kFrequent) {
      next = static_cast<std::size_t>(std::max_element(away.begin(), away.end()) - away.begin());
    }
  }
  return palette;
}

}  // namespace

QImage withFewColours(const QImage& picture) {
  constexpr int kUnseen = 30;
  const QImage plain = picture.convertToFormat(QImage::Format_RGB32);
  QHash<QRgb, int> counts;
  for (int y = 0; y < plain.height(); ++y) {
    for (int x = 0; x < plain.width(); ++x) ++counts[plain.pixel(x, y)];
  }
  const QList<QRgb> palette = paletteOf(counts);
  QHash<QRgb, uint> places;
  for (auto entry = counts.begin(); entry != counts.end(); ++entry) {
    int nearest = std::numeric_limits<int>::max();
    for (qsizetype i = 0; i < palette.size() && nearest > 0; ++i) {
      const int away = distance(entry.key(), palette[i]);
      if (away >= nearest) continue;
      nearest = away;
      places[entry.key()] = static_cast<uint>(i);
    }
    if (nearest > kUnseen) return picture;
  }
  QImage few(plain.size(), QImage::Format_Indexed8);
  few.setColorTable(palette);
  for (int y = 0; y < plain.height(); ++y) {
    for (int x = 0; x < plain.width(); ++x) few.setPixel(x, y, places[plain.pixel(x, y)]);
  }
  return few;
}

void Photographer::take(const QString& name, const QWidget& window) const {
  constexpr int kShown = 150;  // milliseconds
  QTest::qWait(kShown);
  const QRect place = window.frameGeometry();
  const QPixmap shot = QApplication::primaryScreen()->grabWindow(0, place.x(), place.y(),
                                                                 place.width(), place.height());
  withFewColours(shot.toImage()).save(folder_ + u'/' + name + u".png"_s, "PNG", 0);
}

}  // namespace norvik::desktop
