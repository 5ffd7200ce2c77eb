#include "desktop/bench.h"
#include "desktop/bind/surface_view.h"

#include <QtTest>

namespace norvik::desktop {

namespace {

struct PictureForm : front::Form {
  PictureForm() : Form("PictureForm", "Pictures") {}
  front::PictureBox Front{*this, "PictureStore", 40, 30};
};

/// Counts how often a widget is painted.
class Paints : public QObject {
 public:
  explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
};

class SurfaceTest : public Bench<PictureForm> {
 protected:
  SurfaceTest() {
    const auto note = [this](const char* what) {
      return [this, what](front::Mouse mouse) {
        const char* button = mouse.button == front::MouseButton::right  ? " right"
                             : mouse.button == front::MouseButton::left ? ""
                                                                        : " free";
        seen.push_back(what + std::to_string(mouse.x) + "," + std::to_string(mouse.y) + button);
      };
    };
    form.Front.pressed.add(note("press "));
    form.Front.moved.add(note("move "));
    form.Front.released.add(note("release "));
    form.Front.clicked.add([this] { seen.emplace_back("click"); });
    view = dynamic_cast<SurfaceView*>(maker.make(form.Front, window));
    place(40, 30);
  }

  void place(int width, int height) { view->setGeometry(10, 10, width, height); }
  QColor pixel(int x, int y) const { return view->grab().toImage().pixelColor(x, y); }

  void mouse(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent event(type, QPointF(at), view->mapToGlobal(QPointF(at)), button, held, {});
    QApplication::sendEvent(view, &event);
  }
  void press(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    mouse(QEvent::MouseButtonPress, at, button, button);
  }
  void drag(QPoint at, Qt::MouseButtons held) { mouse(QEvent::MouseMove, at, Qt::NoButton, held); }
  void release(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    mouse(QEvent::MouseButtonRelease, at, button, Qt::NoButton);
  }
  using Seen = std::vector<std::string>;
  Seen takeSeen() { return std::exchange(seen, {}); }

  SurfaceView* view = nullptr;
  Seen seen;
};

TEST_F(SurfaceTest, ASurfaceHasItsNameAndSize) {
  EXPECT_EQ(view->objectName(), "PictureStore");
  EXPECT_EQ(view->accessibleName(), "The mesh from the front");
  EXPECT_EQ(view->sizeHint(), QSize(40, 30));
  form.Front.resize(50, 60);
  dispatcher.sync();
  EXPECT_EQ(view->sizeHint(), QSize(50, 60));
}

TEST_F(SurfaceTest, EachPixelIsShownAsItIs) {
  form.Front.surface().setPixel({0, 0}, 0x0000FF);
  form.Front.surface().setPixel({39, 29}, 0xFF8000);
  EXPECT_EQ(pixel(0, 0), QColor(255, 0, 0));
  EXPECT_EQ(pixel(39, 29), QColor(0, 128, 255));
  EXPECT_EQ(pixel(1, 0), QColor(Qt::white));
}

TEST_F(SurfaceTest, AMarkLiesOverThePictureAndIsNotInIt) {
  form.Front.surface().setPixel({0, 0}, 0xFF0000);
  QImage mark(40, 30, QImage::Format_RGB32);
  mark.fill(Qt::white);
  mark.setPixelColor(1, 0, Qt::red);
  view->setMark(mark);
  // Four fifths of red and one of the paper.
  EXPECT_EQ(pixel(1, 0).red(), 255);
  EXPECT_NEAR(pixel(1, 0).green(), 51, 1);
  EXPECT_EQ(pixel(0, 0), QColor(Qt::blue));
  EXPECT_EQ(pixel(2, 0), QColor(Qt::white));
  EXPECT_EQ(form.Front.surface().pixel({1, 0}), front::kWhite);
  view->setMark({});
  EXPECT_EQ(pixel(1, 0), QColor(Qt::white));
}

TEST_F(SurfaceTest, ADrawingComesOnViewWhenItIsRefreshed) {
  Paints paints(*view);
  dispatcher.sync();
  QTest::qWait(50);
  paints.count = 0;
  form.Front.surface().line({0, 0}, {39, 29}, 0);
  dispatcher.sync();
  QTest::qWait(50);
  EXPECT_EQ(paints.count, 0);
  form.Front.refresh();
  form.Front.refresh();
  dispatcher.sync();
  QTRY_COMPARE(paints.count, 1);
}

TEST_F(SurfaceTest, ALargerWidgetShowsSquaresAroundTheMiddle) {
  place(100, 70);  // twice as large is 80 by 60
  form.Front.surface().setPixel({0, 0}, 0);
  form.Front.surface().setPixel({39, 29}, 0);
  EXPECT_EQ(view->pictureBox(), QRectF(10, 5, 80, 60));
  for (const QPoint at : {QPoint(10, 5), QPoint(11, 6), QPoint(88, 63), QPoint(89, 64)}) {
    EXPECT_EQ(pixel(at.x(), at.y()), QColor(Qt::black)) << at.x();
  }
  EXPECT_EQ(pixel(12, 5), QColor(Qt::white));
  EXPECT_EQ(pixel(10, 7), QColor(Qt::white));
  EXPECT_NE(pixel(9, 5), QColor(Qt::black));
  EXPECT_EQ(view->pixelAt({10, 5}), QPoint(0, 0));
  EXPECT_EQ(view->pixelAt({11.9, 6.9}), QPoint(0, 0));
  EXPECT_EQ(view->pixelAt({12, 7}), QPoint(1, 1));
  EXPECT_EQ(view->pixelAt({89, 64}), QPoint(39, 29));
  EXPECT_EQ(view->pixelAt({9, 4}), QPoint(-1, -1));
  EXPECT_EQ(view->pixelAt({90, 65}), QPoint(40, 30));
}

TEST_F(SurfaceTest, ASmallerWidgetShowsTheWholePicture) {
  place(20, 30);
  EXPECT_EQ(view->pictureBox(), QRectF(0, 7, 20, 15));
  EXPECT_EQ(view->pixelAt({0, 7}), QPoint(0, 0));
  EXPECT_EQ(view->pixelAt({19, 21}), QPoint(38, 28));
}

TEST_F(SurfaceTest, AnEmptySurfaceShowsNothing) {
  form.Front.resize(0, 0);
  dispatcher.sync();
  view->grab();
  press({3, 3});
  release({3, 3});
  EXPECT_EQ(seen, Seen{});
}

TEST_F(SurfaceTest, TheMouseArrivesInPixels) {
  place(80, 60);
  press({20, 10});
  drag({22, 13}, Qt::LeftButton);
  release({24, 14});
  EXPECT_EQ(takeSeen(), (Seen{"press 10,5", "move 11,6", "release 12,7", "click"}));
  press({79, 59}, Qt::RightButton);
  drag({0, 0}, Qt::RightButton);
  release({0, 0}, Qt::RightButton);
  EXPECT_EQ(takeSeen(), (Seen{"press 39,29 right", "move 0,0 right", "release 0,0 right"}));
  drag({4, 4}, Qt::NoButton);
  EXPECT_EQ(takeSeen(), (Seen{"move 2,2 free"}));
  EXPECT_TRUE(view->hasMouseTracking());
}

TEST_F(SurfaceTest, ADragIsFollowedOutOfThePicture) {
  press({5, 5});
  drag({-7, 100}, Qt::LeftButton);
  release({50, -3});
  EXPECT_EQ(takeSeen(), (Seen{"press 5,5", "move -7,100", "release 50,-3"}));
}

TEST_F(SurfaceTest, WhatBeginsBesideThePictureIsNotDelivered) {
  place(60, 30);  // ten beside it on either side
  press({5, 5});
  drag({30, 15}, Qt::LeftButton);
  release({30, 15});
  drag({5, 5}, Qt::NoButton);
  EXPECT_EQ(takeSeen(), Seen{});
  press({10, 0});
  EXPECT_EQ(takeSeen(), (Seen{"press 0,0"}));
}

TEST_F(SurfaceTest, AFastSecondPressIsAPress) {
  press({1, 1});
  release({1, 1});
  mouse(QEvent::MouseButtonDblClick, {2, 2}, Qt::LeftButton, Qt::LeftButton);
  drag({9, 9}, Qt::LeftButton);
  release({9, 9});
  EXPECT_EQ(takeSeen(), (Seen{"press 1,1", "release 1,1", "click", "press 2,2", "move 9,9",
                              "release 9,9", "click"}));
}

TEST_F(SurfaceTest, KeysPassThePictureOnToTheForm) {
  QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ");
  QApplication::sendEvent(view, &space);
  EXPECT_FALSE(space.isAccepted());
  EXPECT_EQ(seen, Seen{});
}

TEST_F(SurfaceTest, AHiddenOrDisabledPictureTakesNoMouse) {
  form.Front.setEnabled(false);
  dispatcher.sync();
  QTest::mouseClick(view, Qt::LeftButton, {}, {3, 3});
  EXPECT_EQ(seen, Seen{});
  form.Front.hide();
  dispatcher.sync();
  EXPECT_FALSE(view->isVisible());
}

TEST_F(SurfaceTest, APictureOverAnotherIsMovedAndSeenThroughWhereItIsWhite) {
  form.Front.surface().setPixel({5, 5}, front::kBlack);
  view->placeOver({3, -2});
  EXPECT_EQ(view->pixelAt({8.5, 3.5}), QPoint(5, 5));
  press({8, 3});
  drag({10, 4}, Qt::LeftButton);
  EXPECT_EQ(seen, (std::vector<std::string>{"press 5,5", "move 7,6"}));
  const QImage drawn = [this] {
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::red);
    view->render(&image, {}, {}, {});
    return image;
  }();
  EXPECT_EQ(drawn.pixelColor(20, 20), QColor(Qt::red));
  EXPECT_LT(drawn.pixelColor(8, 3).red(), 80);
}

}  // namespace

}  // namespace norvik::desktop
