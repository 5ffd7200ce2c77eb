#include "desktop/bench.h"

#include <QtTest>

namespace norvik::desktop {

namespace {

struct StillForm : front::Form {
  StillForm() : Form("StillForm", "") {}
};

class Frames : public Bench<StillForm> {};

TEST_F(Frames, KeepToSixtyASecond) {
  constexpr int kFrames = 30;
  QElapsedTimer clock;
  frontEnd.nextFrame();
  clock.start();
  for (int i = 0; i < kFrames; ++i) EXPECT_TRUE(frontEnd.nextFrame());
  // Half a second, less the share of a millisecond that the first may lie early.
  EXPECT_GE(clock.elapsed(), 480);
}

TEST_F(Frames, WhatIsLateDoesNotCatchUp) {
  frontEnd.nextFrame();
  QTest::qSleep(120);
  QElapsedTimer clock;
  clock.start();
  for (int i = 0; i < 4; ++i) frontEnd.nextFrame();
  EXPECT_GE(clock.elapsed(), 45);
}

TEST_F(Frames, LetTheOperatorThrough) {
  bool pressed = false;
  QTimer::singleShot(5, &window, [&] { dispatcher.run([&] { pressed = true; }); });
  dispatcher.run([&] {
    for (int i = 0; i < 10 && !pressed; ++i) frontEnd.nextFrame();
  });
  EXPECT_TRUE(pressed);
}

TEST_F(Frames, EndWhenTheWindowCloses) {
  QTimer::singleShot(5, &window, [&] {
    EXPECT_TRUE(frontEnd.waiting());
    frontEnd.stopWaiting();
  });
  int frames = 0;
  while (frontEnd.nextFrame() && frames < 100) ++frames;
  EXPECT_LT(frames, 100);
  EXPECT_FALSE(frontEnd.waiting());
  EXPECT_TRUE(frontEnd.nextFrame());
}

TEST_F(Frames, EndWithTheProgram) {
  frontEnd.endProcess();
  EXPECT_FALSE(frontEnd.nextFrame());
}

TEST_F(Frames, AToolThatPumpsForEachFaceKeepsMostOfItsTime) {
  int pumps = 0;
  dispatcher.setSync([&] {
    ++pumps;
    QTest::qSleep(10);
  });
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < 300) frontEnd.pumpEvents();
  // A pump of ten milliseconds is followed by forty of quiet.
  EXPECT_GE(pumps, 2);
  EXPECT_LE(pumps, 8);
}

}  // namespace

}  // namespace norvik::desktop
