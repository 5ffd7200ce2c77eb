#include "graphics/stretched_rows.h"

#include <gtest/gtest.h>

namespace norvik::graphics {

namespace {

using Row = std::vector<std::uint32_t>;

Row rowOf(StretchedRows& rows, int number) {
  const auto row = rows.row(number);
  return {row.begin(), row.end()};
}

TEST(StretchedRowsTest, APixelIsThatWhichLiesAtItsPlace) {
  constexpr std::uint32_t kBlackPixel = 0xFF000000;
  constexpr std::uint32_t kWhitePixel = 0xFFFFFFFF;
  constexpr std::uint32_t kRedPixel = 0xFFFF0000;
  Surface surface(3, 2);
  surface.setPixel({0, 0}, kBlack);
  surface.setPixel({2, 1}, colourOf(255, 0, 0));
  StretchedRows rows(surface, {6, 3});
  // Rows 0 and 1 take the first one of the surface: 1 * 2 / 3 is 0.
  const Row first{kBlackPixel, kBlackPixel, kWhitePixel, kWhitePixel, kWhitePixel, kWhitePixel};
  EXPECT_EQ(rowOf(rows, 0), first);
  EXPECT_EQ(rowOf(rows, 1), first);
  EXPECT_EQ(rowOf(rows, 2),
            (Row{kWhitePixel, kWhitePixel, kWhitePixel, kWhitePixel, kRedPixel, kRedPixel}));
  StretchedRows small(surface, {1, 1});
  EXPECT_EQ(rowOf(small, 0), Row{kBlackPixel});
}

}  // namespace

}  // namespace norvik::graphics
