#include "mesh/display_writer.h"

#include <gtest/gtest.h>

namespace norvik::obj {
namespace {

/// Adds triangles whose corners have the face's number as x.
void addTriangles(DisplayWriter& writer, int from, int to) {
  for (int face = from; face <= to; ++face) {
    writer.beginFace();
    for (int corner = 0; corner < 3; ++corner) {
      writer.addCorner({static_cast<float>(face), static_cast<float>(corner), 0});
    }
  }
}

TEST(DisplayList, TakesTheFirstThreeCornersOfAFace) {
  DisplayList list;
  DisplayWriter writer(list);
  writer.beginFace();
  for (int corner = 1; corner <= 5; ++corner)
    writer.addCorner({0.5F, static_cast<float>(corner), 2});
  ASSERT_EQ(list.vertices.size(), 3U);
  EXPECT_EQ(list.DisplayCount, 3U);
  EXPECT_EQ(list.vertices[2].y, 3);
  EXPECT_EQ(list.vertices[0].x, 0.5F);
  EXPECT_EQ(list.vertices[0].z, 2);
  const graphics::Vertex& vertex = list.vertices[0];
  EXPECT_EQ(vertex.nx + vertex.ny + vertex.nz + vertex.tu + vertex.tv, 0);
}

TEST(DisplayList, Of80000TrianglesHolds60000) {
  DisplayList list;
  DisplayWriter writer(list);
  addTriangles(writer, 1, 40000);
  EXPECT_EQ(list.DisplayCount, 3U * 40000);
  addTriangles(writer, 40001, 80000);
  EXPECT_EQ(list.DisplayCount, 3U * 60000);
  EXPECT_EQ(list.vertices.size(), 3U * 60000);
  // The first of the thinned ones stays out, the second goes in.
  EXPECT_EQ(list.vertices[3 * 40000 - 1].x, 40000);
  EXPECT_EQ(list.vertices[3 * 40000].x, 40002);
  EXPECT_EQ(list.vertices.back().x, 80000);
}

TEST(DisplayList, IsWrittenAgainFromTheStartWhileItsCountRises) {
  DisplayList list;
  DisplayWriter first(list);
  addTriangles(first, 1, 3);
  const auto revision = list.revision;
  DisplayWriter again(list);
  addTriangles(again, 11, 12);
  EXPECT_EQ(list.DisplayCount, 15U);
  ASSERT_EQ(list.vertices.size(), 9U);
  EXPECT_EQ(list.vertices[0].x, 11);
  EXPECT_EQ(list.vertices[3].x, 12);
  EXPECT_EQ(list.vertices[6].x, 3);  // what was not written again stays
  EXPECT_GT(list.revision, revision);
}

TEST(DisplayList, IsThinnedSoonerWhenItIsWrittenAgain) {
  DisplayList list;
  DisplayWriter first(list);
  addTriangles(first, 1, 39999);
  DisplayWriter again(list);
  addTriangles(again, 1, 5);
  // The 40000th goes in, then every other one.
  EXPECT_EQ(list.DisplayCount, 3U * 40002);
  EXPECT_EQ(list.vertices[3].x, 3);
  EXPECT_EQ(list.vertices[6].x, 5);
}

TEST(Mesh, KeepsItsRevisionRisingWhenItIsCleared) {
  Mesh mesh;
  DisplayWriter writer(mesh.display);
  addTriangles(writer, 1, 1);
  mesh.HasUV = true;
  mesh.BiggestY = 1;
  const auto revision = mesh.display.revision;
  mesh.clear();
  EXPECT_TRUE(mesh.display.vertices.empty());
  EXPECT_EQ(mesh.display.DisplayCount, 0U);
  EXPECT_GT(mesh.display.revision, revision);
  EXPECT_FALSE(mesh.HasUV);
  EXPECT_EQ(mesh.BiggestY, 0);
}

}  // namespace
}  // namespace norvik::obj
