#include "desktop/phi_pictures.h"

#include <QTreeWidget>
#include <QtTest>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;
using Take = std::function<void(const QString& name, const QWidget& window)>;
using ChooseTheme = std::function<void(const QString&)>;

constexpr int kShown = 200;  // milliseconds

}  // namespace

void takePhiPictures(Operator& hand, const QString& drive, const ChooseTheme& chooseTheme,
                     const Take& take) {
  hand.willPress(u"Yes"_s);
  hand.willChoose(drive + u"/Runtime/Libraries/Characters/Tilda/tilda.cr2"_s);
  hand.menu({u"MenuPhiTools"_s, u"MenuPhi"_s});
  QWidget& window = hand.find(u"FormPhi"_s);
  window.move(0, 0);
  take(u"phi"_s, window);
  // Both forms have a list of that name.
  auto* list = window.findChild<QAbstractItemView*>(u"ListPhi"_s);
  list->setCurrentIndex(list->model()->index(7, 0));
  QTest::keyClick(list, Qt::Key_Return);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  take(u"phi-edited"_s, window);
  chooseTheme(u"dark"_s);
  take(u"phi-dark"_s, window);
  chooseTheme(u"light"_s);
  window.close();
  QTest::qWait(kShown);
}

}  // namespace norvik::desktop
