// Pictures out of the bytes of files.

#include "graphics/bmp_reader.h"

#include "graphics/bmp.h"

#include <gtest/gtest.h>

#include <string>

namespace norvik::graphics {
namespace {

Surface pattern(int width, int height) {
  Surface surface(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      surface.setPixel({x, y}, colourOf(static_cast<unsigned>(x * 7) & 0xFFU,
                                        static_cast<unsigned>(y * 11) & 0xFFU, 200));
    }
  }
  return surface;
}

void put(std::string& bytes, std::size_t at, std::initializer_list<int> values) {
  for (const int value : values) bytes[at++] = static_cast<char>(value);
}

bool isPicture(const std::string& bytes) {
  return bmpSurface(bytes).has_value();
}

TEST(BmpReader, ReadsWhatIsWritten) {
  for (int width = 1; width <= 5; ++width) {
    const Surface drawn = pattern(width, 3);
    const auto read = bmpSurface(bmpBytes(drawn));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->width(), width);
    EXPECT_EQ(read->rgbBytes(), drawn.rgbBytes());
  }
}

TEST(BmpReader, ReadsRowsFromTheTop) {
  // One pixel a row: blue, green, red and a byte of filling.
  std::string bytes = bmpBytes(pattern(1, 2));
  put(bytes, 22, {0xFE, 0xFF, 0xFF, 0xFF});
  const auto read = bmpSurface(bytes);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->height(), 2);
  EXPECT_EQ(read->pixel({0, 0}), colourOf(0, 11, 200));
  EXPECT_EQ(read->pixel({0, 1}), colourOf(0, 0, 200));
}

TEST(BmpReader, SkipsWhatStandsBetweenHeadersAndPixels) {
  std::string bytes = bmpBytes(pattern(4, 2));
  bytes.insert(54, 6, 'x');
  put(bytes, 10, {60});
  ASSERT_TRUE(isPicture(bytes));
  EXPECT_EQ(bmpSurface(bytes)->rgbBytes(), pattern(4, 2).rgbBytes());
}

TEST(BmpReader, KnowsNoOtherFile) {
  const std::string whole = bmpBytes(pattern(3, 2));
  EXPECT_FALSE(isPicture(""));
  EXPECT_FALSE(isPicture("GIF89a" + whole.substr(6)));
  const auto changed = [&whole](std::size_t at, std::initializer_list<int> values) {
    std::string bytes = whole;
    put(bytes, at, values);
    return isPicture(bytes);
  };
  EXPECT_FALSE(changed(14, {12})) << "an older header";
  EXPECT_FALSE(changed(28, {8})) << "bits a pixel";
  EXPECT_FALSE(changed(28, {32}));
  EXPECT_FALSE(changed(30, {1})) << "compressed";
  EXPECT_FALSE(changed(18, {0})) << "no width";
  EXPECT_FALSE(changed(18, {0xFF, 0xFF, 0xFF, 0xFF})) << "less than none";
  EXPECT_FALSE(changed(18, {0xFF, 0xFF, 0xFF, 0x7F})) << "wider than the file";
  EXPECT_FALSE(changed(22, {0})) << "no height";
  EXPECT_FALSE(changed(22, {0, 0, 0, 0x80})) << "the height whose opposite there is not";
  EXPECT_FALSE(changed(22, {0xFF, 0xFF, 0xFF, 0x7F}));
  EXPECT_FALSE(changed(10, {53})) << "pixels in the headers";
  EXPECT_FALSE(changed(10, {58})) << "pixels beyond the end";
  EXPECT_FALSE(changed(10, {0xFF, 0xFF, 0xFF, 0xFF}));
}

TEST(BmpReader, KnowsNoFileThatIsCut) {
  // A row of 9 bytes and 3 of filling, of which the last row can do without.
  const std::string whole = bmpBytes(pattern(3, 2));
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_EQ(isPicture(whole.substr(0, size)), size >= whole.size() - 3) << size;
  }
}

}  // namespace
}  // namespace norvik::graphics
