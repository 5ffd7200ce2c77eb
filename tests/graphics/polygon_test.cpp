// Which pixels belong to a polygon.

#include "graphics/grid.h"
#include "graphics/surface.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <vector>

namespace norvik::graphics {
namespace {

using Corners = std::vector<Point>;

Grid filled(int width, int height, const Corners& corners) {
  Surface surface(width, height, kPaper);
  surface.polygon(corners, kInk);
  return gridOf(surface);
}

/// The same polygon with its last corner named again until there are many.
Corners withManyCorners(Corners corners) {
  constexpr std::size_t kMany = 12;
  while (corners.size() < kMany) corners.push_back(corners.back());
  return corners;
}

TEST(Polygon, OfTwoCornersIsALineOfOneADot) {
  EXPECT_EQ(filled(5, 3, {}), (Grid{{".....", ".....", "....."}}));
  EXPECT_EQ(filled(5, 3, {{3, 1}}), (Grid{{".....", "...#.", "....."}}));
  EXPECT_EQ(filled(5, 3, {{3, 1}, {3, 1}, {3, 1}}), (Grid{{".....", "...#.", "....."}}));
  EXPECT_EQ(filled(5, 3, {{4, 2}, {0, 1}}), (Grid{{".....", "##...", "..###"}}));
}

TEST(Polygon, CornersAndOutlineBelongToIt) {
  EXPECT_EQ(filled(6, 4, {{1, 1}, {4, 1}, {4, 2}, {1, 2}}), (Grid{{"......",  //
                                                                   ".####.",  //
                                                                   ".####.",  //
                                                                   "......"}}));
}

// The long side goes through the centres of 5,1 4,2 3,3 2,4 and 1,5.
TEST(Polygon, ATriangleWithADiagonal) {
  EXPECT_EQ(filled(7, 7, {{1, 1}, {5, 1}, {1, 5}}), (Grid{{".......",  //
                                                           ".#####.",  //
                                                           ".####..",  //
                                                           ".###...",  //
                                                           ".##....",  //
                                                           ".#.....",  //
                                                           "......."}}));
}

// Left side by rows 1, 3/2, 2, 5/2, 3, right side 5, 9/2, 4, 7/2, 3; halves of a line go right, so
// that row 2 has its pixels from 2 to 5.
TEST(Polygon, ATriangleWithSteepSides) {
  const Grid wanted{{".......",  //
                     ".#####.",  //
                     "..####.",  //
                     "..###..",  //
                     "...##..",  //
                     "...#...",  //
                     "......."}};
  EXPECT_EQ(filled(7, 7, {{1, 1}, {5, 1}, {3, 5}}), wanted);
  EXPECT_EQ(filled(7, 7, {{3, 5}, {5, 1}, {1, 1}}), wanted) << "whichever way around";
  EXPECT_EQ(filled(7, 7, {{5, 1}, {3, 5}, {1, 1}}), wanted) << "whichever corner is first";
}

// Of a triangle that is gone around twice only the outline is left.
TEST(Polygon, GoingAroundTwiceIsOutside) {
  const Grid outline{{".......",  //
                      ".#####.",  //
                      "..#..#.",  //
                      "..#.#..",  //
                      "...##..",  //
                      "...#...",  //
                      "......."}};
  Corners corners{{1, 1}, {5, 1}, {3, 5}, {1, 1}, {5, 1}, {3, 5}};
  EXPECT_EQ(filled(7, 7, corners), outline);
  EXPECT_EQ(filled(7, 7, withManyCorners(corners)), outline);
}

TEST(Polygon, ABowTieHasTwoInsides) {
  const Corners corners{{0, 0}, {6, 6}, {6, 0}, {0, 6}};
  const Grid wanted{{"#.....#",  //
                     "##...##",  //
                     "###.###",  //
                     "#######",  //
                     "###.###",  //
                     "##...##",  //
                     "#.....#"}};
  EXPECT_EQ(filled(7, 7, corners), wanted);
  EXPECT_EQ(filled(7, 7, withManyCorners(corners)), wanted);
}

// Outer sides by rows: 0, 1/2, 1, 3/2, 2, 5/2, 3 and 6, 11/2, 5, 9/2, 4, 7/2, 3.
TEST(Polygon, ANotchStaysOpen) {
  const Corners corners{{0, 0}, {3, 3}, {6, 0}, {3, 6}};
  const Grid wanted{{"#.....#",  //
                     ".#...##",  //
                     ".##.##.",  //
                     "..####.",  //
                     "..###..",  //
                     "...##..",  //
                     "...#..."}};
  EXPECT_EQ(filled(7, 7, corners), wanted);
  EXPECT_EQ(filled(7, 7, withManyCorners(corners)), wanted);
}

// A square around a square, joined by a seam: the middle is gone around twice.
TEST(Polygon, AHoleStaysOpen) {
  EXPECT_EQ(
      filled(7, 7,
             {{0, 0}, {6, 0}, {6, 6}, {0, 6}, {0, 0}, {2, 2}, {4, 2}, {4, 4}, {2, 4}, {2, 2}}),
      (Grid{{"#######",  //
             "#######",  //
             "#######",  //
             "###.###",  //
             "#######",  //
             "#######",  //
             "#######"}}));
}

TEST(Polygon, AThinOneIsItsOutline) {
  EXPECT_EQ(filled(7, 3, {{1, 1}, {4, 1}, {2, 1}, {5, 1}}),
            (Grid{{".......", ".#####.", "......."}}));
  EXPECT_EQ(filled(3, 4, {{1, 3}, {1, 0}, {1, 2}}), (Grid{{".#.", ".#.", ".#.", ".#."}}));
}

TEST(Polygon, IsClipped) {
  EXPECT_EQ(filled(4, 4, {{-3, -3}, {1, -3}, {1, 1}, {-3, 1}}), (Grid{{"##..",  //
                                                                       "##..",  //
                                                                       "....",  //
                                                                       "...."}}));
  EXPECT_EQ(filled(4, 2, {{5, -3}, {9, -3}, {9, 9}, {5, 9}}), (Grid{{"....", "...."}}));
  EXPECT_EQ(filled(4, 2, {{-5, -3}, {-1, -3}, {-1, 9}, {-5, 9}}), (Grid{{"....", "...."}}));
}

TEST(Polygon, ReachesAsFarAsNumbersDo) {
  constexpr int kLeast = INT_MIN;
  constexpr int kMost = INT_MAX;
  // The sides between opposite corners go through 0,0 1,1 2,2, and through -1,0 0,-1.
  const Corners belowDiagonal{{kLeast, kLeast}, {kMost, kMost}, {kLeast, kMost}};
  const Corners beyond{{kLeast, kMost}, {kMost, kMost}, {kMost, kLeast}};
  const Corners before{{kLeast, kMost}, {kLeast, kLeast}, {kMost, kLeast}};
  for (const bool many : {false, true}) {
    const auto fill = [many](const Corners& corners) {
      return filled(3, 3, many ? withManyCorners(corners) : corners);
    };
    EXPECT_EQ(fill(belowDiagonal), (Grid{{"#..", "##.", "###"}}));
    EXPECT_EQ(fill(beyond), (Grid{{"###", "###", "###"}}));
    EXPECT_EQ(fill(before), (Grid{{"...", "...", "..."}}));
  }
}

/// Corners in and around a surface of 20 by 20, seen through a window of 8 by 6 in its middle.
class RandomPolygons : public ::testing::Test {
 protected:
  static constexpr int kSide = 20;
  static constexpr Point kWindow{7, 5};
  static constexpr int kWidth = 8;
  static constexpr int kHeight = 6;

  int coordinate() { return static_cast<int>(random_() % (kSide + 8)) - 4; }
  Corners corners(std::size_t count) {
    Corners result(count);
    for (Point& corner : result) corner = {coordinate(), coordinate()};
    return result;
  }

  std::mt19937 random_{20020304};
};

TEST_F(RandomPolygons, ClippingChangesNoPixel) {
  for (int round = 0; round < 2000; ++round) {
    Corners polygon = corners(static_cast<std::size_t>(round % 12));
    Surface all(kSide, kSide, kPaper);
    all.polygon(polygon, kInk);
    for (Point& corner : polygon) corner = {corner.x - kWindow.x, corner.y - kWindow.y};
    Surface part(kWidth, kHeight, kPaper);
    part.polygon(polygon, kInk);
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < kWidth; ++x) {
        ASSERT_EQ(part.pixel({x, y}), all.pixel({x + kWindow.x, y + kWindow.y}))
            << "round " << round;
      }
    }
  }
}

TEST_F(RandomPolygons, AreTheSameWithManyCorners) {
  for (int round = 0; round < 2000; ++round) {
    const Corners polygon = corners(3 + static_cast<std::size_t>(round % 6));
    ASSERT_EQ(filled(kSide, kSide, polygon), filled(kSide, kSide, withManyCorners(polygon)))
        << "round " << round;
  }
}

TEST_F(RandomPolygons, HoldTheLinesOfTheirSides) {
  for (int round = 0; round < 500; ++round) {
    const Corners polygon = corners(4);
    Surface surface(kSide, kSide, kPaper);
    surface.polygon(polygon, kInk);
    const Grid before = gridOf(surface);
    for (std::size_t i = 0; i < polygon.size(); ++i) {
      surface.line(polygon[i], polygon[(i + 1) % polygon.size()], kInk);
    }
    ASSERT_EQ(gridOf(surface), before) << "round " << round;
  }
}

}  // namespace
}  // namespace norvik::graphics
