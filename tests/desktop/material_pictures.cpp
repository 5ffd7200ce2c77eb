#include "desktop/material_pictures.h"

#include <QFile>
#include <QtTest>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;

/// The figure with a name in place of a material's, so that it lacks that one and has another.
void writeMixedFigure(const QString& figure, const QString& mixed) {
  QFile in(figure);
  QFile out(mixed);
  if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly)) giveUp("no mixed figure");
  out.write(in.readAll().replace("\tmaterial lips", "\tmaterial lipsMaterial"));
}

}  // namespace

void takeMaterialPictures(Operator& hand, const QString& figure, const QString& folder,
                          const std::function<void(const QString& theme)>& chooseTheme,
                          const std::function<void(const QString& name, QWidget* window)>& take) {
  const QString mixed = folder + u"/mixed.cr2"_s;
  writeMixedFigure(figure, mixed);
  hand.willChoose(mixed);
  hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
  hand.willPress(u"No"_s);
  hand.willChoose(folder + u"/coordinated.cr2"_s);
  hand.menu({u"MenuCR2Tools"_s, u"MenuCoordMat"_s});
  QWidget& window = hand.find(u"FormMatCoord"_s);
  window.move(0, 0);
  take(u"coordinator"_s, &window);
  chooseTheme(u"dark"_s);
  take(u"coordinator-dark"_s, &window);
  chooseTheme(u"light"_s);
  window.close();
  QTest::qWait(50);
  hand.menu({u"MenuCR2Tools"_s, u"menuGeomSwitch"_s});
  take(u"geometries"_s, nullptr);
  hand.rightClick(u"ListAltGeomActors"_s);
}

}  // namespace norvik::desktop
