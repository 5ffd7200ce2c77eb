#include "desktop/dial_pictures.h"

#include <QAbstractItemView>
#include <QtTest>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;

void doubleClickItem(Operator& hand, const QString& list, const QString& text) {
  hand.clickItem(list, text);
  auto* view = qobject_cast<QAbstractItemView*>(&hand.find(list));
  if (view == nullptr) giveUp("no list to double-click in");
  const QPoint place = view->visualRect(view->currentIndex()).center();
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
  QTest::qWait(QApplication::doubleClickInterval() + 50);
}

}  // namespace

void takeDialPictures(Operator& hand, const std::function<void(const QString& name)>& take) {
  doubleClickItem(hand, u"ListActors"_s, u"head:1"_s);
  hand.clickItem(u"ListChannelsReorderByPart"_s, u"LongHead"_s);
  take(u"reorder"_s);
  QTest::keyClick(&hand.find(u"ListChannelsReorderNewOrder"_s), Qt::Key_Escape);

  hand.menu({u"MenuCR2Tools"_s, u"MenuDials"_s, u"menuHideDialsChannels"_s});
  take(u"hidden-dials"_s);
  QTest::keyClick(&hand.find(u"ListHideDialsChannels"_s), Qt::Key_Escape);

  hand.menu({u"MenuCR2Tools"_s, u"menuMirror"_s});
  hand.clickItem(u"ListChannels"_s, u"LongHead"_s);
  hand.willPress(u"No"_s);
  doubleClickItem(hand, u"ListActors"_s, u"head:1"_s);
  take(u"mirrored"_s);
}

}  // namespace norvik::desktop
