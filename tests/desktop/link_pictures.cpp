#include "desktop/link_pictures.h"

#include <QtTest>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;

constexpr int kPreview = 600;  // milliseconds

/// What is done in the modal form is done by a timer: the click that opens it comes back when it is
/// over.
void walk(Operator& hand, const std::function<void(const QString&)>& chooseTheme,
          const TakePicture& take) {
  QWidget& window = hand.find(u"FormECM"_s);
  window.move(0, 0);
  hand.clickItem(u"ListControlledMorph"_s, u"RoundHead"_s);
  hand.clickItem(u"ListControlledMorph"_s, u"LongHead"_s);
  hand.clickItem(u"ListActorsECM"_s, u"head:1"_s);
  QTest::qWait(kPreview);
  take(u"links"_s, window);
  chooseTheme(u"dark"_s);
  take(u"links-dark"_s, window);
  chooseTheme(u"light"_s);
  window.close();
}

}  // namespace

void takeLinkPictures(Operator& hand, const std::function<void(const QString&)>& chooseTheme,
                      const TakePicture& take) {
  hand.click(u"PictureEMC"_s);
  QWidget& dialog = hand.find(u"DialogERC"_s);
  dialog.move(0, 0);
  hand.click(u"OptionPBM"_s);
  take(u"link-kinds"_s, dialog);
  constexpr int kShown = 300;  // milliseconds
  QTimer::singleShot(kShown, &dialog, [&] { walk(hand, chooseTheme, take); });
  QTest::mouseClick(dialog.findChild<QWidget*>(u"LabelDone"_s), Qt::LeftButton);
  dialog.close();
  QTest::qWait(kShown);

  hand.click(u"PictureChangeRatio"_s);
  QWidget& ratios = hand.find(u"FormListEMCs"_s);
  ratios.move(0, 0);
  // The main form has a list of the same name.
  auto* list = ratios.findChild<QWidget*>(u"ListEMCs"_s);
  QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
  take(u"ratios"_s, ratios);
  ratios.close();
  QTest::qWait(kShown);
}

}  // namespace norvik::desktop
