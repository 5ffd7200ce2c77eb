// The window with a displaced part over the part at rest.

#include "desktop/window/shape_view.h"

#include <QPointer>
#include <QtTest>
#include <gtest/gtest.h>

namespace norvik::desktop {

namespace {

channels::PartShape triangle() {
  channels::PartShape shape;
  shape.rest = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}};
  shape.moved = {{0, 0, 0}, {1, 0, .5F}, {0, 1.5F, 0}};
  shape.sides = {{0, 1}, {0, 2}, {1, 2}};
  return shape;
}

TEST(ShapeViewTest, TurnsAndZoomsByTheKeys) {
  QWidget window;
  QPointer<ShapeView> view =
      std::make_unique<ShapeView>(triangle(), QStringLiteral("head"), window).release();
  view->show();
  const QImage front = view->grab().toImage();
  QTest::keyClick(view, Qt::Key_Right);
  const QImage turned = view->grab().toImage();
  EXPECT_NE(front, turned);
  QTest::keyClick(view, Qt::Key_Plus);
  EXPECT_NE(view->grab().toImage(), turned);
  QTest::keyClick(view, Qt::Key_Escape);
  EXPECT_FALSE(!view.isNull() && view->isVisible());
}

TEST(ShapeViewTest, DrawsAPartWithoutFaces) {
  QWidget window;
  QPointer<ShapeView> view =
      std::make_unique<ShapeView>(channels::PartShape{}, QStringLiteral("head"), window).release();
  EXPECT_FALSE(view->grab().isNull());
  view->close();
}

}  // namespace

}  // namespace norvik::desktop
