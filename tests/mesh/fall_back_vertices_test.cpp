#include "mesh/fall_back_vertices.h"

#include "support/error_number.h"

#include <gtest/gtest.h>

namespace norvik::obj {
namespace {

constexpr int kSubscript = 9;

/// Vertex n has n as its x.
FallBackVertices numbered(int count) {
  FallBackVertices vertices;
  for (int i = 1; i <= count; ++i) vertices.add({std::to_string(i), "0.5", "-2"});
  return vertices;
}

TEST(FallBackVertices, AreFoundByTheirNumber) {
  const FallBackVertices vertices = numbered(3);
  EXPECT_EQ(vertices.firstCorner(1), (Position{1, 0.5F, -2}));
  EXPECT_EQ(vertices.laterCorner(1), (Position{1, 0.5F, -2}));
  EXPECT_EQ(vertices.laterCorner(3).x, 3);
}

TEST(FallBackVertices, Above32000AreRightForTheCornersThatAreDrawn) {
  const FallBackVertices vertices = numbered(32002);
  EXPECT_EQ(vertices.laterCorner(32000).x, 32000);
  EXPECT_EQ(vertices.laterCorner(32001).x, 32001);
  EXPECT_EQ(vertices.laterCorner(32002).x, 32002);
  EXPECT_EQ(vertices.firstCorner(32000).x, 32000);
  EXPECT_EQ(vertices.firstCorner(32001).x, 32000);
  EXPECT_EQ(vertices.firstCorner(32002).x, 32001);
}

TEST(FallBackVertices, ThatAreNotThereAreASubscriptOutOfRange) {
  const FallBackVertices few = numbered(2);
  const FallBackVertices many = numbered(32001);
  EXPECT_EQ(tests::errorNumber([&] { few.firstCorner(0); }), kSubscript);
  EXPECT_EQ(tests::errorNumber([&] { few.laterCorner(3); }), kSubscript);
  EXPECT_EQ(tests::errorNumber([&] { few.laterCorner(40000); }), kSubscript);
  EXPECT_EQ(tests::errorNumber([&] { many.laterCorner(32002); }), kSubscript);
}

}  // namespace
}  // namespace norvik::obj
