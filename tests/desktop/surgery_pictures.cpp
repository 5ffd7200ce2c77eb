#include "desktop/surgery_pictures.h"

#include "desktop/bind/surface_view.h"

#include <QTreeWidget>
#include <QtTest>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;
using Take = std::function<void(const QString& name, const QWidget& window)>;
using ChooseTheme = std::function<void(const QString&)>;

constexpr int kShown = 200;  // milliseconds

/// The mouse over a view, in hundredths of its picture.
class Pointer {
 public:
  explicit Pointer(QWidget& view) : view_(view) {}

  void press(double x, double y) { QTest::mousePress(&view_, Qt::LeftButton, {}, at(x, y)); }
  void release(double x, double y) { QTest::mouseRelease(&view_, Qt::LeftButton, {}, at(x, y)); }
  void drag(double x, double y) {
    const QPointF place = at(x, y);
    QMouseEvent move(QEvent::MouseMove, place, view_.mapToGlobal(place), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view_, &move);
    QTest::qWait(kShown);
  }

 private:
  QPoint at(double x, double y) const {
    const int side = std::min(view_.width(), view_.height());
    const QPoint corner((view_.width() - side) / 2, (view_.height() - side) / 2);
    constexpr double kWhole = 100;
    return corner +
           QPoint(static_cast<int>(x * side / kWhole), static_cast<int>(y * side / kWhole));
  }

  QWidget& view_;
};

}  // namespace

void takeSurgeryPictures(Operator& hand, const QString& drive, const ChooseTheme& chooseTheme,
                         const Take& take) {
  hand.click(u"PictureOBJView"_s);
  QWidget& window = hand.find(u"FormOBJ"_s);
  window.move(0, 0);
  hand.click(u"OptionColorGroups"_s);
  hand.click(u"LabelView"_s);

  hand.click(u"PictureLop"_s);
  Pointer onFront(hand.find(u"PictureStore"_s));
  onFront.press(20, 20);
  onFront.drag(50, 45);
  take(u"mesh-box"_s, window);
  hand.willPress(u"No"_s);
  hand.willLook([&](QWidget& box) {
    box.move(window.x() + window.width() / 2, window.y() + window.height() / 2);
    take(u"mesh-cut"_s, window);
  });
  onFront.release(50, 45);
  QTest::qWait(kShown);

  QTimer::singleShot(4 * kShown, &window, [&] {
    QWidget& tree = hand.find(u"FormTree"_s);
    auto* parts = tree.findChild<QTreeWidget*>(u"ListPhi"_s);
    const auto shoulder = parts->findItems(u"lShldr"_s, Qt::MatchRecursive);
    if (!shoulder.isEmpty()) parts->setCurrentItem(shoulder.front());
    take(u"mesh-branch"_s, tree);
    tree.close();
  });
  hand.click(u"PicturePhiLopper"_s);

  hand.willChoose(drive + u"/Runtime/Geometries/Tilda/tildahair.obj"_s);
  hand.click(u"PictureAddOBJ"_s);
  Pointer onOverlay(hand.find(u"PictureAddObjFront"_s));
  onOverlay.press(50, 30);
  onOverlay.drag(65, 40);
  onOverlay.release(65, 40);
  take(u"mesh-add"_s, window);
  chooseTheme(u"dark"_s);
  take(u"mesh-add-dark"_s, window);
  chooseTheme(u"light"_s);
  hand.click(u"PictureMerge"_s);
  take(u"mesh-merged"_s, window);
  window.close();
  QTest::qWait(kShown);
}

}  // namespace norvik::desktop
