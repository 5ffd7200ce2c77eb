#include "desktop/gl/gl_view.h"

#include "desktop/bench.h"
#include "desktop/gl/gl_support.h"
#include "support/allocations.h"

#include <QtTest>

#include <vector>

namespace norvik::desktop {

namespace {

using graphics::Primitive;
using graphics::Transform;
using graphics::Vertex;

struct ViewForm : front::Form {
  ViewForm() : Form("ViewForm", "") {}
  front::PictureBox Picture{*this, "Picture", 300, 300};
};

/// Counts what is asked for while a frame is painted.
class WatchedView : public GlView {
 public:
  using GlView::GlView;
  std::size_t painted = 0;

 protected:
  void paintGL() override {
    const std::size_t before = tests::allocations();
    GlView::paintGL();
    painted += tests::allocations() - before;
  }
};

/// Runs where there is a screen with OpenGL; elsewhere the view is blank, which is tested too.
class GlViewTest : public Bench<ViewForm> {
 protected:
  void SetUp() override {
    if (!glSupport().present) GTEST_SKIP() << "no OpenGL on this platform";
  }

  void setUp(GlDevice& device) {
    ASSERT_TRUE(device.createDirectDraw());
    ASSERT_TRUE(device.createDevice(graphics::kDeviceName));
    device.setTransform(Transform::view,
                        graphics::viewMatrix({0, 2.5F, -3}, {0, 2.5F, 0}, {0, 1, 0}, 0));
    device.setTransform(Transform::projection, graphics::projectionMatrix(1, 1000, 1.5707963F));
  }
  void draw(GlDevice& device, const std::vector<Vertex>& mesh, std::uint64_t revision,
            Primitive primitive = Primitive::triangles) {
    device.clear(graphics::kWhite, graphics::kClearTarget);
    device.beginScene();
    device.drawPrimitive(primitive, graphics::kVertexFormat, {mesh, revision});
    device.endScene();
    device.blt(device.windowRect());
  }

  front::PictureBox& picture() { return form.Picture; }
};

/// A corner of the mesh.
Vertex at(float x, float y, float z) {
  return {.x = x, .y = y, .z = z};
}

/// A triangle of the plane z = 0 that covers the right half of what the eye sees.
const std::vector<Vertex> kRightHalf{at(0, -9, 0), at(0, 12, 0), at(9, 2.5F, 0)};

TEST_F(GlViewTest, PaintsTheMeshWhereTheMatricesPutIt) {
  GlDevice device(picture());
  GlView view(device, &window);
  view.setGeometry(0, 0, 300, 300);
  view.show();
  setUp(device);
  device.setMaterial({1, 0, 0});
  draw(device, kRightHalf, 1);
  QTRY_VERIFY_WITH_TIMEOUT(view.counts().frames > 0, 3000);
  const QImage image = view.grabFramebuffer();
  EXPECT_EQ(image.pixelColor(60, 150), QColor(Qt::white));
  const QColor red = image.pixelColor(200, 150);
  // The face looks at the lamp: all of red but what the lamp's slant takes.
  EXPECT_GT(red.red(), 190);
  EXPECT_EQ(red.green(), 0);
  EXPECT_EQ(red.blue(), 0);
}

TEST_F(GlViewTest, APointIsPaintedInItsPlaceAndInFullColour) {
  GlDevice device(picture());
  GlView view(device, &window);
  view.setGeometry(0, 0, 300, 300);
  view.show();
  setUp(device);
  device.setMaterial({0, 0, 1});
  // One unit right of and one above the middle of six: pixel 150 + 50 and 150 - 50.
  draw(device, {at(1, 3.5F, 0)}, 1, Primitive::points);
  QTRY_VERIFY_WITH_TIMEOUT(view.counts().frames > 0, 3000);
  const QImage image = view.grabFramebuffer();
  bool found = false;
  for (int y = 99; y <= 101; ++y) {
    for (int x = 199; x <= 201; ++x) found |= image.pixelColor(x, y) == QColor(Qt::blue);
  }
  EXPECT_TRUE(found);
  EXPECT_EQ(image.pixelColor(150, 150), QColor(Qt::white));
}

TEST_F(GlViewTest, BothSidesOfAFaceAreDrawn) {
  GlDevice device(picture());
  GlView view(device, &window);
  view.setGeometry(0, 0, 300, 300);
  view.show();
  setUp(device);
  device.setMaterial({1, 0, 0});
  draw(device, {kRightHalf[0], kRightHalf[2], kRightHalf[1]}, 1);
  QTRY_VERIFY_WITH_TIMEOUT(view.counts().frames > 0, 3000);
  EXPECT_GT(view.grabFramebuffer().pixelColor(200, 150).red(), 190);
}

TEST_F(GlViewTest, TheMarkStandsOutWhereTheMeshHasItToo) {
  GlDevice device(picture());
  GlView view(device, &window);
  view.setGeometry(0, 0, 300, 300);
  view.show();
  setUp(device);
  device.setMaterial({0, 0, 1});
  std::vector<Vertex> mesh = kRightHalf;
  mesh.insert(mesh.end(), {at(0, -9, 0), at(0, 12, 0), at(-9, 2.5F, 0)});
  draw(device, mesh, 1);
  view.setMark({{0, -9, 0}, {0, 12, 0}, {9, 2.5F, 0}});
  QTRY_VERIFY_WITH_TIMEOUT(view.counts().frames > 0, 3000);
  const auto colourAt = [&view](int x) { return view.grabFramebuffer().pixelColor(x, 150); };
  EXPECT_GT(colourAt(200).red(), 190);
  EXPECT_EQ(colourAt(200).blue(), 0);
  EXPECT_GT(colourAt(60).blue(), 190);
  EXPECT_EQ(colourAt(60).red(), 0);
  // A red mesh has it in blue; without it all is the mesh's own.
  device.setMaterial({1, 0, 0});
  draw(device, mesh, 1);
  EXPECT_GT(colourAt(200).blue(), 190);
  EXPECT_GT(colourAt(60).red(), 190);
  view.setMark({});
  EXPECT_GT(colourAt(200).red(), 190);
  EXPECT_EQ(view.counts().uploads, 1);
}

TEST_F(GlViewTest, ASpinUploadsTheMeshOnceAndPaintsWithoutAskingForMemory) {
  constexpr std::size_t kTriangles = 200'000;
  constexpr int kWarmUp = 3;
  constexpr int kFrames = 12;
  const std::vector<Vertex> mesh(3 * kTriangles, at(0.5F, 2, 0));
  GlDevice device(picture());
  WatchedView view(device, &window);
  view.setGeometry(0, 0, 300, 300);
  view.show();
  setUp(device);
  std::size_t atStart = 0;
  std::size_t inDevice = 0;
  for (int i = 0; i < kFrames; ++i) {
    if (i == kWarmUp) atStart = view.painted;
    const int before = view.counts().frames;
    const std::size_t asked = tests::allocations();
    device.setTransform(Transform::world, graphics::rotationAboutY(0.1F * static_cast<float>(i)));
    device.clear(graphics::kWhite, graphics::kClearTarget);
    device.drawPrimitive(Primitive::triangles, graphics::kVertexFormat, {mesh, 7});
    if (i >= kWarmUp) inDevice += tests::allocations() - asked;
    device.blt(device.windowRect());
    QTRY_VERIFY_WITH_TIMEOUT(view.counts().frames > before, 5000);
  }
  EXPECT_EQ(view.counts().uploads, 1);
  EXPECT_EQ(view.counts().allocations, 1);
  EXPECT_EQ(device.meshes(), 1U);
  EXPECT_EQ(inDevice, 0U);
  EXPECT_EQ(view.painted, atStart);
}

TEST_F(GlViewTest, ASmallerMeshGoesIntoTheSameBuffer) {
  GlDevice device(picture());
  GlView view(device, &window);
  view.setGeometry(0, 0, 300, 300);
  view.show();
  setUp(device);
  const auto paint = [&](std::size_t corners, std::uint64_t revision) {
    const int before = view.counts().frames;
    draw(device, std::vector<Vertex>(corners), revision);
    return QTest::qWaitFor([&] { return view.counts().frames > before; }, 3000);
  };
  ASSERT_TRUE(paint(30, 1));
  ASSERT_TRUE(paint(12, 2));
  EXPECT_EQ(view.counts().uploads, 2);
  EXPECT_EQ(view.counts().allocations, 1);
  ASSERT_TRUE(paint(33, 3));
  EXPECT_EQ(view.counts().allocations, 2);
  EXPECT_EQ(device.corners().size(), 33U);
}

TEST(GlDeviceTest, WithoutOpenGlTheSetUpFailsAndTheViewStaysBlank) {
  if (glSupport().present) GTEST_SKIP() << "there is OpenGL on this platform";
  ViewForm form;
  GlDevice device(form.Picture);
  EXPECT_FALSE(device.createDirectDraw());
  const std::vector<Vertex> mesh(3);
  device.clear(graphics::kWhite, graphics::kClearTarget);
  device.drawPrimitive(Primitive::triangles, graphics::kVertexFormat, {mesh, 1});
  device.blt(device.windowRect());
  EXPECT_EQ(device.shown().count, 0U);
  EXPECT_TRUE(device.corners().empty());
}

}  // namespace

}  // namespace norvik::desktop
