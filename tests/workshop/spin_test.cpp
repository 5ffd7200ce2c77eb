#include "support/allocations.h"
#include "workshop/spin_bench.h"

#include <cmath>
#include <string_view>
#include <vector>

namespace norvik::obj {

namespace {

using graphics::Matrix;
using graphics::Primitive;
using graphics::Transform;
using SpinTest = SpinBench;

TEST_F(SpinTest, ALoadOfTheFormMakesTheViewStepByStep) {
  session.load(form);
  const std::vector<std::string> wanted{"createDirectDraw",
                                        "setCooperativeLevel 8",
                                        "createPrimarySurface 0x200",
                                        "createBackSurface 7 0x2040 600x600",
                                        "createClipper",
                                        "createDirect3D",
                                        "createDevice IID_IDirect3DRGBDevice",
                                        "setViewport 0 0 600 600 0 1",
                                        "setRenderState 139 0xffffffff",
                                        "setRenderState 22 0x1"};
  EXPECT_EQ(device().setUp(), wanted);
  EXPECT_EQ(device().material(), (graphics::Material{1, 0, 0}));
  EXPECT_EQ(device().transform(Transform::world), graphics::identityMatrix());
  // From (0, 2.5, -3) to (0, 2.5, 0).
  EXPECT_EQ(view(), (Matrix{{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, -2.5F, 3, 1}}}}));
  // 1 / tan(3.14 / 4) is 1.0007966, 1000 / 999 is 1.001001.
  const Matrix& projection = device().transform(Transform::projection);
  EXPECT_NEAR(projection.row[0][0], 1.0007966F, 1e-6F);
  EXPECT_NEAR(projection.row[1][1], 1.0007966F, 1e-6F);
  EXPECT_NEAR(projection.row[2][2], 1.001001F, 1e-6F);
  EXPECT_NEAR(projection.row[3][2], -1.001001F, 1e-6F);
  EXPECT_EQ(projection.row[2][3], 1);
}

TEST_F(SpinTest, AStepThatFailsLeavesTheViewBlankAndTheFormAlive) {
  for (const char* step :
       {"createDirectDraw", "setCooperativeLevel", "createPrimarySurface", "createBackSurface",
        "createClipper", "createDirect3D", "createDevice"}) {
    device().fail(step);
    load();
    EXPECT_TRUE(form.loaded());
    fill(3);
    key("Space");
    EXPECT_TRUE(workshop.spin.SpinStopped);
    EXPECT_EQ(device().counts().draws, 0) << step;
    EXPECT_EQ(device().counts().blits, 0) << step;
    session.unload(form);
  }
}

TEST_F(SpinTest, AFrameIsClearedDrawnAndBroughtOnViewInThisOrder) {
  load();
  fill(9);
  drawFrame(workshop);
  EXPECT_EQ(device().frame(), (std::vector<std::string_view>{"clear", "beginScene", "drawPrimitive",
                                                             "endScene", "windowRect", "blt"}));
  EXPECT_EQ(device().clearColour(), 0xFFFFFFU);
  ASSERT_EQ(device().draws().size(), 1U);
  EXPECT_EQ(device().draws()[0].primitive, Primitive::triangles);
  EXPECT_EQ(device().draws()[0].format, 0x112U);
  EXPECT_EQ(device().draws()[0].vertices, 9U);
}

TEST_F(SpinTest, TheOptionsChooseBetweenPolygonsAndPoints) {
  load();
  fill(9);
  form.OptionShowPoints.setValue(true);
  drawFrame(workshop);
  ASSERT_EQ(device().draws().size(), 1U);
  EXPECT_EQ(device().draws()[0].primitive, Primitive::points);
  form.OptionShowPoints.setValue(false);
  form.OptionShowPolys.setValue(false);
  drawFrame(workshop);
  EXPECT_TRUE(device().draws().empty());
}

TEST_F(SpinTest, TheFirstSpaceStopsAndTheSecondOneSpinsInBlue) {
  load();
  fill(3);
  form.PictureUVMap.show();
  form.PictureStore.show();
  form.PictureNewFile.hide();
  form.PictureNoDX.show();
  form.PictureOBJViewer.show();
  form.PictureObjViewer2.hide();
  key("Space");
  EXPECT_TRUE(workshop.spin.SpinStopped);
  EXPECT_FALSE(form.PictureUVMap.visible());
  EXPECT_FALSE(form.PictureStore.visible());
  EXPECT_TRUE(form.PictureNewFile.visible());
  EXPECT_FALSE(form.PictureObjViewer2.visible());
  EXPECT_EQ(device().counts().blits, 1);
  EXPECT_EQ(device().draws()[0].material, (graphics::Material{1, 0, 0}));

  form.PictureStore3.show();
  betweenFrames = [&] {
    EXPECT_FALSE(form.PictureStore3.visible());
    EXPECT_FALSE(form.PictureNewFile.visible());
    EXPECT_FALSE(form.PictureNoDX.visible());
    EXPECT_FALSE(form.PictureOBJViewer.visible());
    EXPECT_TRUE(form.PictureObjViewer2.visible());
    EXPECT_EQ(device().draws()[0].material, (graphics::Material{0, 0, 1}));
    return false;
  };
  key("Space");
  EXPECT_EQ(commands, 1);
  EXPECT_FALSE(workshop.spin.looping);
}

TEST_F(SpinTest, EachFrameTurnsTheWorldForTheNextOne) {
  load();
  fill(3);
  workshop.spin.SpinSpeed = 36;
  std::vector<float> drawn;
  std::vector<float> set;
  betweenFrames = [&] {
    drawn.push_back(device().draws()[0].world.row[2][0]);
    set.push_back(device().transform(Transform::world).row[2][0]);
    EXPECT_EQ(device().frame(),
              (std::vector<std::string_view>{"clear", "beginScene", "drawPrimitive", "endScene",
                                             "setTransform", "windowRect", "blt"}));
    return drawn.size() < 3;
  };
  spin();
  // 36, 72 and 108 steps of which 360 are a radian: sin 0.1, sin 0.2, sin 0.3.
  ASSERT_EQ(set.size(), 3U);
  EXPECT_NEAR(set[0], 0.0998334F, 1e-6F);
  EXPECT_NEAR(set[1], 0.1986693F, 1e-6F);
  EXPECT_NEAR(set[2], 0.2955202F, 1e-6F);
  EXPECT_EQ(drawn[0], 0);
  EXPECT_EQ(drawn[1], set[0]);
  EXPECT_EQ(drawn[2], set[1]);
}

TEST_F(SpinTest, TheWindowMayMoveBetweenFrames) {
  load();
  fill(3);
  std::vector<graphics::WindowRect> seen;
  betweenFrames = [&] {
    seen.push_back(device().lastBlit());
    form.PictureObjViewer2.setBox({100, 50, 300, 200});
    return seen.size() < 2;
  };
  spin();
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(seen[0], (graphics::WindowRect{10, 20, 610, 620}));
  EXPECT_EQ(seen[1], (graphics::WindowRect{100, 50, 400, 250}));
}

TEST_F(SpinTest, FramesSaysHowManyAreDrawnBetweenCommands) {
  load();
  fill(3);
  frontEnd.setFrames(5);
  std::vector<int> blits;
  betweenFrames = [&] {
    blits.push_back(device().counts().blits);
    if (blits.size() == 2) frontEnd.setFrames(1);
    return blits.size() < 3;
  };
  spin();
  // One of the first Space, then five, five, and one.
  EXPECT_EQ(blits, (std::vector<int>{6, 11, 12}));
}

TEST_F(SpinTest, SpaceInTheLoopEndsIt) {
  load();
  fill(3);
  betweenFrames = [&] {
    key("Space");
    return true;
  };
  spin();
  EXPECT_EQ(commands, 1);
  EXPECT_TRUE(workshop.spin.SpinStopped);
  EXPECT_TRUE(form.PictureNewFile.visible());
}

TEST_F(SpinTest, StoppedAndStartedBetweenTwoFramesTheSameLoopGoesOn) {
  load();
  fill(3);
  int depth = 0;
  int deepest = 0;
  betweenFrames = [&] {
    deepest = std::max(deepest, ++depth);
    if (commands == 1) spin();
    --depth;
    return commands < 4;
  };
  spin();
  EXPECT_EQ(deepest, 1);
  EXPECT_EQ(commands, 4);
}

TEST_F(SpinTest, AnUnloadInTheLoopEndsIt) {
  load();
  fill(3);
  betweenFrames = [&] {
    session.unload(form);
    return true;
  };
  spin();
  EXPECT_EQ(commands, 1);
  EXPECT_FALSE(form.loaded());
  EXPECT_TRUE(workshop.spin.SpinStopped);
  EXPECT_FALSE(workshop.spin.looping);
}

TEST_F(SpinTest, AFormLoadedAnewInTheLoopDoesNotSpin) {
  load();
  fill(3);
  workshop.spin.SpinSpeed = 9;
  betweenFrames = [&] {
    session.unload(form);
    session.load(form);
    return true;
  };
  spin();
  EXPECT_EQ(commands, 1);
  EXPECT_FALSE(workshop.spin.looping);
  EXPECT_FALSE(workshop.spin.SpinStopped);
  EXPECT_EQ(workshop.spin.SpinSpeed, 1);
  EXPECT_EQ(workshop.spin.diffuse, (Diffuse{1, 0, 0}));
}

TEST_F(SpinTest, AnErrorInTheLoopEndsItAndTheNextOneStarts) {
  load();
  fill(3);
  betweenFrames = []() -> bool { throw text::FileError(text::ErrorNumber::diskFull); };
  spin();
  EXPECT_FALSE(workshop.spin.looping);
  workshop.spin.SpinStopped = true;
  betweenFrames = [] { return false; };
  key("Space");
  EXPECT_EQ(commands, 2);
}

TEST_F(SpinTest, AMeshThatOnlyTurnsIsTakenOnceAndNothingIsAllocated) {
  constexpr std::size_t kManyCorners = 60000;
  constexpr int kFrames = 500;
  load();
  fill(kManyCorners);
  std::size_t atStart = 0;
  std::size_t atEnd = 0;
  betweenFrames = [&] {
    if (commands == 2) atStart = tests::allocations();
    if (commands == kFrames) atEnd = tests::allocations();
    return commands < kFrames;
  };
  spin();
  EXPECT_EQ(device().counts().uploads, 1);
  EXPECT_EQ(device().counts().blits, kFrames + 1);
  EXPECT_GT(atStart, 0U);
  EXPECT_EQ(atEnd, atStart);
}

TEST_F(SpinTest, AMeshThatChangesInTheLoopIsTakenAgain) {
  load();
  fill(3);
  betweenFrames = [&] {
    if (commands == 3) fill(6);
    return commands < 6;
  };
  spin();
  EXPECT_EQ(device().counts().uploads, 2);
  EXPECT_EQ(device().draws()[0].vertices, 6U);
}

TEST_F(SpinTest, TheViewIsClearedToWhite) {
  load();
  fill(3);
  drawFrame(workshop);
  clearView(workshop);
  EXPECT_TRUE(device().draws().empty());
  EXPECT_EQ(device().frame(), (std::vector<std::string_view>{"clear", "windowRect", "blt"}));
  EXPECT_EQ(device().clearColour(), 0xFFFFFFU);
}

}  // namespace

}  // namespace norvik::obj
