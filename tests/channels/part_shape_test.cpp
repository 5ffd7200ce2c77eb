// The shapes of a displaced part: what the extract has made, over the part at rest.

#include "channels/mirror/part_shape.h"

#include "support/drive.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

namespace norvik::channels {

namespace {

using Sides = std::vector<std::pair<std::size_t, std::size_t>>;

class PartShapeTest : public testing::Test, public tests::Drive {
 protected:
  PartShapeTest() {
    folder.write("doll.obj",
                 "v 9 9 9\r\nv 0 0 0\r\nv 1 0 0\r\nv 1 1 0\r\nv 0 1 0\r\nvt 0 0\r\n"
                 "g hip\r\nf 1 2 3\r\ng head\r\nf 2/1 3/1 4/1\r\nf -3 -2 -1\r\n");
  }
  PartShape shape() { return shapeOfExtract(disk, "C:\\doll.obj", "head", "C:\\NewMor.obj"); }
};

TEST_F(PartShapeTest, SidesGoByThePlacesInThePart) {
  folder.write("NewMor.obj", "v  0  0  .5\r\nv  1  0  0\r\nv  1  1  0\r\nv  0  1 -.5\r\n");
  const PartShape found = shape();
  EXPECT_EQ(found.rest, (std::vector<Vertex>{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}));
  EXPECT_EQ(found.moved, (std::vector<Vertex>{{0, 0, .5F}, {1, 0, 0}, {1, 1, 0}, {0, 1, -.5F}}));
  EXPECT_EQ(found.sides, (Sides{{0, 1}, {0, 2}, {1, 2}, {1, 3}, {2, 3}}));
}

TEST_F(PartShapeTest, AnExtractOfAnotherPartDoesNotFit) {
  folder.write("NewMor.obj", "v  0  0  0\r\n");
  EXPECT_EQ(tests::errorNumber([&] { shape(); }), 9);
}

TEST_F(PartShapeTest, AMissingPartIs62) {
  folder.write("NewMor.obj", "");
  EXPECT_EQ(
      tests::errorNumber([&] { shapeOfExtract(disk, "C:\\doll.obj", "neck", "C:\\NewMor.obj"); }),
      62);
}

}  // namespace

}  // namespace norvik::channels
