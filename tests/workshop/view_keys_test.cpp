#include "workshop/spin_bench.h"

#include <string>

namespace norvik::obj {

namespace {

using graphics::Transform;

class ViewKeys : public SpinBench {
 protected:
  ViewKeys() {
    load();
    fill(3);
  }
  float eyeHeight() { return -view().row[3][1]; }
  float scale() { return device().transform(Transform::projection).row[0][0]; }
  int frames() { return device().counts().blits; }
};

TEST_F(ViewKeys, EscapeTogglesSuppress) {
  key("Escape");
  EXPECT_TRUE(workshop.Suppress);
  key("Escape");
  EXPECT_FALSE(workshop.Suppress);
  EXPECT_EQ(frames(), 0);
}

TEST_F(ViewKeys, PlusLooksFromATenthBelowHoweverOftenItIsPressed) {
  key("+");
  EXPECT_FLOAT_EQ(eyeHeight(), 2.4F);
  key("+");
  EXPECT_FLOAT_EQ(eyeHeight(), 2.4F);
  EXPECT_EQ(frames(), 2);
  EXPECT_FLOAT_EQ(view().row[3][2], 3);
}

TEST_F(ViewKeys, MinusLooksFromATenthAbove) {
  key("-");
  EXPECT_FLOAT_EQ(eyeHeight(), 2.6F);
  key("-");
  EXPECT_FLOAT_EQ(eyeHeight(), 2.6F);
  EXPECT_EQ(frames(), 2);
}

TEST_F(ViewKeys, StarNarrowsTheFieldAndSlashWidensIt) {
  // 1 / tan(3.14 / 2.1 / 2) and 1 / tan(3.14 / 1.9 / 2).
  key("*");
  EXPECT_FLOAT_EQ(workshop.spin.FovDivisor, 2.1F);
  EXPECT_NEAR(scale(), 1.0785637F, 1e-5F);
  key("/");
  key("/");
  EXPECT_FLOAT_EQ(workshop.spin.FovDivisor, 1.9F);
  EXPECT_NEAR(scale(), 0.9213394F, 1e-5F);
  EXPECT_EQ(frames(), 3);
}

TEST_F(ViewKeys, TheDivisorComesToNothingAndBeginsAnew) {
  workshop.spin.FovDivisor = 0.1F;
  key("/");
  EXPECT_EQ(workshop.spin.FovDivisor, 0);
  EXPECT_EQ(frames(), 1);
  key("/");
  EXPECT_FLOAT_EQ(workshop.spin.FovDivisor, 1.9F);
}

TEST_F(ViewKeys, TwentyStepsOutComeToNothingExactly) {
  for (int i = 0; i < 20; ++i) key("/");
  EXPECT_EQ(workshop.spin.FovDivisor, 0);
  key("*");
  EXPECT_FLOAT_EQ(workshop.spin.FovDivisor, 2.1F);
  EXPECT_EQ(events.str().find("runtime-error"), std::string::npos);
}

TEST_F(ViewKeys, NineSpeedsUpAndThreeSlowsDownToOne) {
  key("+");
  key("9");
  EXPECT_EQ(workshop.spin.SpinSpeed, 2);
  EXPECT_FLOAT_EQ(eyeHeight(), 2.5F);
  key("+");
  key("3");
  EXPECT_EQ(workshop.spin.SpinSpeed, 1);
  EXPECT_FLOAT_EQ(eyeHeight(), 2.5F);
  key("3");
  EXPECT_EQ(workshop.spin.SpinSpeed, 1);
  EXPECT_EQ(frames(), 5);
}

TEST_F(ViewKeys, TheKeysOfTheViewsAreIgnored) {
  for (const char* name : {"8", "2", "4", "6", "f", "s", "t", "5", "R", "Enter", "F3", "x"}) {
    key(name);
  }
  EXPECT_EQ(frames(), 0);
  EXPECT_FALSE(workshop.spin.SpinStopped);
}

class BusyKeys : public ViewKeys {
 protected:
  void expectStill() {
    form.PictureUVMap.show();
    for (const char* name : {"/", "*", "+", "-", "9", "3", "Space"}) key(name);
    EXPECT_EQ(frames(), 0);
    EXPECT_EQ(workshop.spin.FovDivisor, 0);
    EXPECT_EQ(workshop.spin.SpinSpeed, 1);
    EXPECT_FALSE(workshop.spin.SpinStopped);
    EXPECT_TRUE(form.PictureUVMap.visible());
    key("Escape");
    EXPECT_TRUE(workshop.Suppress);
  }
};

TEST_F(BusyKeys, DoNothingWithASecondMeshInView) {
  form.AddMode = true;
  expectStill();
}

TEST_F(BusyKeys, DoNothingWhileTheLabelAsksForPatience) {
  form.LabelWait.show();
  expectStill();
}

}  // namespace

}  // namespace norvik::obj
