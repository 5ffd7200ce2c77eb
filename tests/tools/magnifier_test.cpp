// The magnifier on a screen.

#include "headless/script_bench.h"

#include <gtest/gtest.h>

#include <optional>

namespace norvik::tools {
namespace {

/// A front end with a screen of 1024 by 768 and a pointer on it.
class GlassFrontEnd : public headless::ScriptFrontEnd {
 public:
  using ScriptFrontEnd::ScriptFrontEnd;

  std::optional<front::ScreenPoint> pointer() override { return at; }
  graphics::Surface enlarged(const front::ScreenPart& part, int width, int height) override {
    seen = part;
    graphics::Surface surface(width, height);
    surface.setPixel({0, 0}, graphics::colourOf(1, 2, 3));
    return surface;
  }

  void point(int x, int y) { at = front::ScreenPoint{{x, y}, 1024, 768, 0x12345678}; }

  std::optional<front::ScreenPoint> at;
  std::optional<front::ScreenPart> seen;
};

class MagnifierTest : public testing::Test {
 protected:
  MagnifierTest() { bench_.play("load Magnifier\nset Magnifier.VScroll1 50\n"); }

  /// "left,top,width,height" of what the next tick shows; empty for nothing.
  std::string tickAt(int x, int y) {
    bench_.front.point(x, y);
    bench_.front.seen.reset();
    bench_.play("timer Magnifier.Timer1\n");
    if (!bench_.front.seen) return {};
    const front::ScreenPart& part = *bench_.front.seen;
    return std::to_string(part.left) + "," + std::to_string(part.top) + "," +
           std::to_string(part.width) + "," + std::to_string(part.height);
  }

  headless::BenchOf<GlassFrontEnd> bench_;
};

// The image has 300 by 240 pixels at the start.

TEST_F(MagnifierTest, ShowsThePartAroundThePointer) {
  EXPECT_EQ(tickAt(500, 400), "425,340,150,120");
  bench_.play("key Magnifier Ctrl+F1\n");
  EXPECT_EQ(tickAt(500, 400), "350,280,300,240");
  bench_.play("key Magnifier Ctrl+F5\n");
  EXPECT_EQ(tickAt(500, 400), "499,399,3,2");
}

TEST_F(MagnifierTest, StopsAtTheEdges) {
  EXPECT_EQ(tickAt(500, 400), "425,340,150,120");
  EXPECT_EQ(tickAt(0, 0), "425,340,150,120") << "in a corner the last good point is kept";
  EXPECT_EQ(tickAt(75, 0), "0,340,150,120") << "each axis for itself";
  EXPECT_EQ(tickAt(74, 60), "0,0,150,120");
  EXPECT_EQ(tickAt(949, 708), "874,648,150,120");
  EXPECT_EQ(tickAt(950, 709), "874,648,150,120");
}

TEST_F(MagnifierTest, ShowsTheColourUnderThePointer) {
  tickAt(10, 10);
  const auto lines = bench_.play("expect Magnifier.Shape2 back 3430008\n");
  EXPECT_EQ(lines, headless::Lines{}) << "0x345678, without what stands above 24 bits";
}

TEST_F(MagnifierTest, ShowsWhatIsSeenAndForgetsItAtAnotherZoom) {
  tickAt(500, 400);
  const auto crc = [this] {
    return bench_.play("show Magnifier.Picture1\n").at(0).substr(0, 1000);
  };
  const std::string seen = crc();
  bench_.play("set Magnifier.VScroll1 49\n");
  EXPECT_NE(crc(), seen);
}

TEST_F(MagnifierTest, KeepsStillWhereNoProgramMayLook) {
  bench_.front.at.reset();
  bench_.play("timer Magnifier.Timer1\n");
  EXPECT_FALSE(bench_.front.seen);
}

TEST_F(MagnifierTest, StandsStillWhenClosed) {
  bench_.play("close Magnifier\n");
  EXPECT_EQ(tickAt(500, 400), "");
}

}  // namespace
}  // namespace norvik::tools
