#include "desktop/workshop_pictures.h"

#include <QtTest>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;

/// A template, the groups, and the size that is asked for before it is saved.
void takeTemplate(Operator& hand, const Photographer& camera, QWidget& window) {
  hand.click(u"LabelUVMap"_s);
  hand.click(u"CommandListGroups"_s);
  hand.click(u"LabelSaveMap"_s);
  hand.type(u"TextMapSize"_s, u"2048"_s);
  camera.take(u"mesh-tools"_s, window);
  hand.click(u"CommandListGroups"_s);
}

}  // namespace

/// What is done while the mesh spins is done by a timer: the key that starts the spin comes back
/// when it is over.
void takeWorkshopPictures(Operator& hand, const std::function<void(const QString&)>& chooseTheme,
                          const Photographer& camera) {
  camera.take(u"mesh"_s);
  chooseTheme(u"dark"_s);
  camera.take(u"mesh-dark"_s);
  chooseTheme(u"light"_s);
  hand.click(u"PictureOBJView"_s);
  QWidget& window = hand.find(u"FormOBJ"_s);
  window.move(0, 0);
  camera.take(u"workshop"_s, window);
  hand.click(u"OptionColorGroups"_s);
  hand.click(u"LabelView"_s);
  camera.take(u"workshop-front"_s, window);
  hand.click(u"OptionSideView"_s);
  camera.take(u"workshop-side"_s, window);
  hand.click(u"OptionTopView"_s);
  camera.take(u"workshop-top"_s, window);

  QWidget& views = hand.find(u"ViewStack"_s);
  QTest::keyClick(&views, Qt::Key_Space);
  QTimer::singleShot(1500, &window, [&] {
    camera.take(u"workshop-spin"_s, window);
    QTest::keyClick(&views, Qt::Key_Space);
  });
  QTest::keyClick(&views, Qt::Key_Space);

  hand.click(u"OptionFrontView"_s);
  hand.click(u"LabelView"_s);
  takeTemplate(hand, camera, window);
  hand.click(u"LabelView"_s);
  hand.click(u"LabelHotKeys"_s);
  chooseTheme(u"dark"_s);
  camera.take(u"workshop-dark"_s, window);
  hand.click(u"LabelBoss"_s);
  camera.take(u"workshop-boss"_s, window);
  hand.click(u"LabelPlay"_s);
  chooseTheme(u"light"_s);
  window.close();
  QTest::qWait(50);
}

}  // namespace norvik::desktop
