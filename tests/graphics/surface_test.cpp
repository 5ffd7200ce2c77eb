// Pixels of a surface, and what the pen does to them.

#include "graphics/surface.h"

#include "graphics/grid.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

namespace norvik::graphics {
namespace {

TEST(Surface, IsPaperAtFirst) {
  const Surface surface(2, 2, kPaper);
  EXPECT_EQ(gridOf(surface), (Grid{{"..", ".."}}));
  EXPECT_EQ(surface.pixels().size(), 4U);
  EXPECT_EQ(surface.pixels()[0], 0xFF302010U) << "red is the lowest byte of a colour";
}

TEST(Surface, KeepsThePixelsThatAreSet) {
  Surface surface(3, 2, kPaper);
  surface.setPixel({2, 1}, kInk);
  surface.setPixel({0, 0}, 0xFFFFFF);
  EXPECT_EQ(gridOf(surface), (Grid{{"?..", "..#"}}));
  EXPECT_EQ(surface.pixel({0, 0}), 0xFFFFFFU);
}

TEST(Surface, TakesPlacesOutsideForPaper) {
  Surface surface(2, 2, kPaper);
  for (const Point at : {Point{-1, 0}, Point{2, 0}, Point{0, -1}, Point{0, 2},
                         Point{INT_MIN, INT_MAX}, Point{INT_MAX, INT_MIN}}) {
    surface.setPixel(at, kInk);
    EXPECT_EQ(surface.pixel(at), kPaper);
    EXPECT_FALSE(surface.holds(at));
  }
  EXPECT_EQ(gridOf(surface), (Grid{{"..", ".."}}));
}

TEST(Surface, IsWipedByAnotherSize) {
  Surface surface(2, 1, kPaper);
  surface.setPixel({0, 0}, kInk);
  surface.resize(1, 2);
  EXPECT_EQ(gridOf(surface), (Grid{{".", "."}}));
  surface.setPixel({0, 1}, kInk);
  surface.clear();
  EXPECT_EQ(gridOf(surface), (Grid{{".", "."}}));
}

TEST(Surface, OfNoSizeTakesEverything) {
  for (Surface surface : {Surface(0, 5), Surface(5, 0), Surface(-3, 4)}) {
    surface.setPixel({0, 0}, kInk);
    surface.dot({0, 0}, kInk, 3);
    surface.line({-5, -5}, {5, 5}, kInk);
    surface.box({-5, -5}, {5, 5}, kInk, 2);
    surface.polygon(std::vector<Point>{{-5, -5}, {5, -5}, {5, 5}, {-5, 5}}, kInk);
    surface.polygon(std::vector<Point>(9, Point{0, 0}), kInk);
    EXPECT_EQ(surface.pixels().size(), 0U);
    EXPECT_EQ(surface.rgbBytes(), "");
  }
}

TEST(Surface, DotsAreSquares) {
  Surface surface(9, 5, kPaper);
  surface.dot({0, 2}, kInk);
  surface.dot({3, 2}, kInk, 2);  // an even pen reaches further up and to the left
  surface.dot({6, 2}, kInk, 3);
  EXPECT_EQ(gridOf(surface), (Grid{{".........",  //
                                    "..##.###.",  //
                                    "#.##.###.",  //
                                    ".....###.",  //
                                    "........."}}));
  surface.clear();
  surface.dot({8, 4}, kInk, 0);
  surface.dot({0, 0}, kInk, 4);
  EXPECT_EQ(gridOf(surface), (Grid{{"##.......",  //
                                    "##.......",  //
                                    ".........",  //
                                    ".........",  //
                                    "........#"}}));
  surface.dot({4, 2}, kInk, INT_MAX);
  EXPECT_EQ(surface.pixel({8, 0}), kInk);
}

// From 0,0 to 7,3 the exact heights are 0, 3/7, 6/7, 9/7, 12/7, 15/7, 18/7 and 3; rounded 0, 0, 1,
// 1, 2, 2, 3, 3.
TEST(Surface, AShallowLineHasOnePixelAColumn) {
  const Grid wanted{{"##......",  //
                     "..##....",  //
                     "....##..",  //
                     "......##"}};
  Surface surface(8, 4, kPaper);
  surface.line({0, 0}, {7, 3}, kInk);
  EXPECT_EQ(gridOf(surface), wanted);
  surface.clear();
  surface.line({7, 3}, {0, 0}, kInk);
  EXPECT_EQ(gridOf(surface), wanted);
}

// From 5,0 to 0,2: by columns from the left 2, 8/5, 6/5, 4/5, 2/5, 0; rounded 2, 2, 1, 1, 0, 0.
TEST(Surface, AShallowLineGoesToTheLeftToo) {
  Surface surface(6, 3, kPaper);
  surface.line({5, 0}, {0, 2}, kInk);
  EXPECT_EQ(gridOf(surface), (Grid{{"....##",  //
                                    "..##..",  //
                                    "##...."}}));
}

// By rows 0, 1/2, 1: a half goes to the right. And 3, 5/2, 2: the half goes to the right again.
TEST(Surface, ASteepLineHasOnePixelARowAndHalvesGoRight) {
  Surface surface(4, 3, kPaper);
  surface.line({0, 0}, {1, 2}, kInk);
  surface.line({2, 2}, {3, 0}, kInk);
  EXPECT_EQ(gridOf(surface), (Grid{{"#..#",  //
                                    ".#.#",  //
                                    ".##."}}));
}

// By columns 0, 1/2, 1 and 1, 1/2, 0.
TEST(Surface, HalvesOfAShallowLineGoDown) {
  Surface surface(7, 2, kPaper);
  surface.line({0, 0}, {2, 1}, kInk);
  surface.line({4, 1}, {6, 0}, kInk);
  EXPECT_EQ(gridOf(surface), (Grid{{"#.....#",  //
                                    ".##.##."}}));
}

TEST(Surface, LevelUprightAndDiagonalLines) {
  Surface surface(5, 5, kPaper);
  surface.line({3, 0}, {1, 0}, kInk);
  surface.line({4, 4}, {4, 2}, kInk);
  surface.line({0, 1}, {3, 4}, kInk);
  surface.line({3, 2}, {3, 2}, kInk);
  EXPECT_EQ(gridOf(surface), (Grid{{".###.",  //
                                    "#....",  //
                                    ".#.##",  //
                                    "..#.#",  //
                                    "...##"}}));
}

// The line of AShallowLineHasOnePixelAColumn, seen from its third column and second row on.
TEST(Surface, ClippingChangesNoPixel) {
  Surface surface(4, 2, kPaper);
  surface.line({-2, -1}, {5, 2}, kInk);
  EXPECT_EQ(gridOf(surface), (Grid{{"##..",  //
                                    "..##"}}));
}

// The whole breadth of the numbers: the slope is that of the diagonal, through -1,-1 and 0,0.
TEST(Surface, LinesReachAsFarAsNumbersDo) {
  Surface surface(3, 3, kPaper);
  surface.line({INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}, kInk);
  EXPECT_EQ(gridOf(surface), (Grid{{"#..", ".#.", "..#"}}));
  surface.clear();
  // Through -1/2,-1/2 with slope -1: at column 0 it is at row -1.
  surface.line({INT_MIN, INT_MAX}, {INT_MAX, INT_MIN}, kInk);
  EXPECT_EQ(gridOf(surface), (Grid{{"...", "...", "..."}}));
  surface.line({INT_MIN, 1}, {INT_MAX, 1}, kInk);
  surface.line({2, INT_MIN}, {2, INT_MAX}, kInk);
  EXPECT_EQ(gridOf(surface), (Grid{{"..#", "###", "..#"}}));
  surface.clear();
  surface.line({INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}, kInk, 2);
  EXPECT_EQ(gridOf(surface), (Grid{{"##.", "###", ".##"}}));
  surface.line({INT_MIN, INT_MAX}, {INT_MAX, INT_MIN}, kInk, INT_MAX);
  EXPECT_EQ(gridOf(surface), (Grid{{"###", "###", "###"}}));
}

TEST(Surface, AWideLineIsTheSquareAlongTheThinOne) {
  Surface surface(8, 6, kPaper);
  surface.line({2, 2}, {5, 3}, kInk, 3);         // thin: 2,2 3,2 4,3 5,3
  EXPECT_EQ(gridOf(surface), (Grid{{"........",  //
                                    ".####...",  //
                                    ".######.",  //
                                    ".######.",  //
                                    "...####.",  //
                                    "........"}}));
  surface.clear();
  surface.line({3, 1}, {3, 4}, kInk, 2);
  EXPECT_EQ(gridOf(surface), (Grid{{"..##....",  //
                                    "..##....",  //
                                    "..##....",  //
                                    "..##....",  //
                                    "..##....",  //
                                    "........"}}));
}

TEST(Surface, BoxesAreOutlines) {
  Surface surface(7, 5, kPaper);
  surface.box({5, 3}, {1, 1}, kInk);
  EXPECT_EQ(gridOf(surface), (Grid{{".......",  //
                                    ".#####.",  //
                                    ".#...#.",  //
                                    ".#####.",  //
                                    "......."}}));
  surface.clear();
  surface.box({1, 1}, {6, 5}, kInk, 2);
  EXPECT_EQ(gridOf(surface), (Grid{{"#######",  //
                                    "#######",  //
                                    "##...##",  //
                                    "##...##",  //
                                    "#######"}}));
  surface.clear();
  surface.box({2, 1}, {4, 1}, kInk);
  surface.box({INT_MIN, INT_MIN}, {6, INT_MAX}, kInk);
  EXPECT_EQ(gridOf(surface), (Grid{{"......#",  //
                                    "..###.#",  //
                                    "......#",  //
                                    "......#",  //
                                    "......#"}}));
}

TEST(Surface, TheExclusiveOrPenTurnsBitsOver) {
  Surface surface(1, 1, 0xFF00F0);
  surface.setPenMode(PenMode::exclusiveOr);
  surface.dot({0, 0}, 0x0F0FFF);
  EXPECT_EQ(surface.pixel({0, 0}), 0xF00F0FU);
  EXPECT_EQ(surface.pixels()[0] >> 24U, 0xFFU) << "the pixel stays opaque";
  surface.setPixel({0, 0}, 0x123456);
  EXPECT_EQ(surface.pixel({0, 0}), 0x123456U) << "a single pixel is set in any mode";
}

TEST(Surface, TheExclusiveOrPenUndoesItself) {
  Surface surface(12, 12, kPaper);
  surface.setPixel({4, 4}, kInk);
  const Grid before = gridOf(surface);
  surface.setPenMode(PenMode::exclusiveOr);
  const std::vector<Point> star{{5, -2}, {9, 11}, {-1, 3}, {12, 4}, {1, 11}};
  std::vector<Point> twice = star;
  twice.insert(twice.end(), star.begin(), star.end());
  const auto draw = [&] {
    surface.line({1, 1}, {9, 4}, kInk, 3);
    surface.box({2, 2}, {3, 8}, kInk, 2);
    surface.polygon(star, kInk);
    surface.polygon(twice, kInk);
  };
  draw();
  EXPECT_NE(gridOf(surface), before);
  draw();
  EXPECT_EQ(gridOf(surface), before);
}

TEST(Surface, TheExclusiveOrPenMeetsEachPixelOnce) {
  Surface surface(5, 4, 0);
  surface.setPenMode(PenMode::exclusiveOr);
  surface.box({1, 1}, {3, 3}, kInk);
  surface.box({0, 0}, {4, 0}, kInk, 2);
  surface.line({0, 2}, {0, 3}, kInk, 2);
  int inked = 0;
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 5; ++x) inked += surface.pixel({x, y}) == kInk ? 1 : 0;
  }
  EXPECT_EQ(inked, 8 + 5 + 3);
}

TEST(Surface, GivesRedGreenAndBlueRowByRow) {
  Surface surface(2, 2, 0);
  surface.setPixel({0, 0}, colourOf(1, 2, 3));
  surface.setPixel({1, 0}, colourOf(0xFE, 0, 0));
  surface.setPixel({0, 1}, colourOf(0, 0, 0xFD));
  EXPECT_EQ(surface.rgbBytes(), std::string("\x01\x02\x03\xFE\0\0\0\0\xFD\0\0\0", 12));
}

}  // namespace
}  // namespace norvik::graphics
