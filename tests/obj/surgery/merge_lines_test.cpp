// The lines of a second mesh.

#include "obj/surgery/merge_lines.h"

#include "support/error_number.h"

#include <gtest/gtest.h>

namespace norvik::obj {
namespace {

TEST(RaisedFace, RaisesVertexAndTextureByNumbersOfTheirOwn) {
  EXPECT_EQ(raisedFace("f 1/2/3 4/5 6", 10, 100), "f 11/102 14/105 16");
  EXPECT_EQ(raisedFace("f 1//3 2/ 3//", 10, 100), "f 11 12 13");
  EXPECT_EQ(raisedFace("f  1   2  ", 1, 1), "f 2 3");
  EXPECT_EQ(raisedFace("f", 1, 1), "f");
  EXPECT_EQ(raisedFace("f 9999999 1.5", 1, 0), "f 1E+07 2.5");
}

TEST(TexturePointLine, TrimsBothNumbers) {
  EXPECT_EQ(texturePointLine(" .5*-.25              "), "vt .5 -.25");
  EXPECT_EQ(texturePointLine(" 1*"), "vt 1 ");
}

TEST(VertexShift, MovesNothingAtTheStart) {
  front::FormOBJ form;
  form.PictureAddObjFront.setBox({10, 0, 600, 600});
  const VertexShift shift(form);
  EXPECT_EQ(shift.line("v 1 2 3"), "v 01 2 3");
  EXPECT_EQ(shift.line("v  -1   2.125   3  4 "), "v -01 2.125 3  4");
}

TEST(VertexShift, CountsHalfOfAWiderOverlay) {
  front::FormOBJ form;
  form.PictureAddObjFront.setBox({10, 0, 660, 540});
  // 30 pixels to the right, 60 up the scale.
  EXPECT_EQ(VertexShift(form).line("v 1 1 1"), "v 01.05 1.1 1");
}

TEST(VertexShift, OfANumberBeyondSinglePrecisionIsError6) {
  front::FormOBJ form;
  form.PictureAddObjFront.setBox({10, 0, 600, 600});
  EXPECT_EQ(tests::errorNumber([&] { VertexShift(form).line("v 1 1e39 1"); }), 6);
}

}  // namespace
}  // namespace norvik::obj
