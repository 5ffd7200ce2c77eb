// Pictures as bytes: the file and the check sum.

#include "graphics/bmp.h"
#include "graphics/crc32.h"

#include <gtest/gtest.h>

#include <string>

namespace norvik::graphics {
namespace {

std::string bytes(std::initializer_list<int> values) {
  std::string result;
  for (const int value : values) result += static_cast<char>(value);
  return result;
}

TEST(Bmp, HasRowsFromTheBottomFilledUpToFours) {
  Surface surface(3, 2, kBlack);
  surface.setPixel({0, 0}, colourOf(1, 2, 3));
  surface.setPixel({2, 0}, colourOf(0xF1, 0xF2, 0xF3));
  surface.setPixel({1, 1}, colourOf(4, 5, 6));
  EXPECT_EQ(bmpBytes(surface),
            bytes({'B', 'M', 78, 0, 0,  0, 0,    0,    0,    0, 54, 0, 0, 0,         //
                   40,  0,   0,  0, 3,  0, 0,    0,    2,    0, 0,  0, 1, 0, 24, 0,  //
                   0,   0,   0,  0, 24, 0, 0,    0,    0,    0, 0,  0, 0, 0, 0,  0,  //
                   0,   0,   0,  0, 0,  0, 0,    0,                                  //
                   0,   0,   0,  6, 5,  4, 0,    0,    0,    0, 0,  0,               //
                   3,   2,   1,  0, 0,  0, 0xF3, 0xF2, 0xF1, 0, 0,  0}));
}

TEST(Bmp, NeedsNoFillingForAWidthOfFour) {
  const Surface surface(4, 5);
  const std::string file = bmpBytes(surface);
  EXPECT_EQ(file.size(), 54U + 4 * 3 * 5);
  EXPECT_EQ(file.substr(54), std::string(60, '\xFF'));
}

TEST(Bmp, SizesTakeSeveralBytes) {
  const Surface surface(300, 1);
  const std::string file = bmpBytes(surface);
  EXPECT_EQ(file.substr(2, 4), bytes({0xBA, 3, 0, 0})) << "954";
  EXPECT_EQ(file.substr(18, 4), bytes({0x2C, 1, 0, 0})) << "300";
}

TEST(Bmp, OfAnEmptySurfaceIsItsHeaders) {
  EXPECT_EQ(bmpBytes(Surface(0, 7)).size(), 54U);
  EXPECT_EQ(bmpBytes(Surface(7, 0)).size(), 54U);
}

TEST(Crc32, IsTheOneOfZipFiles) {
  EXPECT_EQ(crc32(""), 0U);
  EXPECT_EQ(crc32("123456789"), 0xCBF43926U);
  EXPECT_EQ(crc32(std::string(36, '\xFF')), 429457753U);
  EXPECT_EQ(crc32(std::string(1, '\0')), 0xD202EF8DU);
}

}  // namespace
}  // namespace norvik::graphics
