#include "mesh/vertex_text.h"

#include "support/error_number.h"

#include <gtest/gtest.h>

#include <string>

namespace norvik::obj {
namespace {

constexpr int kOverflow = 6;

/// The three texts with "|" between them.
std::string cut(std::string_view line) {
  VertexCutter cutter;
  const VertexTexts texts = cutter(line);
  return std::string{texts.x} + "|" + std::string{texts.y} + "|" + std::string{texts.z};
}

TEST(VertexText, OfAnXThatIsNotNegativeLosesItsFirstCharacter) {
  EXPECT_EQ(cut("v 0.5 0.25 0.125"), ".5|0.25|0.125");
  EXPECT_EQ(cut("v 12.5 0 0"), "2.5|0|0");
  EXPECT_EQ(cut("v .5 1 2"), "5|1|2");
  EXPECT_EQ(cut("v 7 1 2"), "|1|2");
}

TEST(VertexText, OfANegativeXStays) {
  EXPECT_EQ(cut("v -0.5 0.1 0.2"), "-0.5|0.1|0.2");
  EXPECT_EQ(cut("v -12.5 -1 -2"), "-12.5|-1|-2");
  EXPECT_EQ(cut("v -3 1 2"), "-3|1|2");
}

TEST(VertexText, OfANegativeXWithoutItsZeroLosesADigit) {
  EXPECT_EQ(cut("v -.512 0.1 0.2"), "-0.12|0.1|0.2");
  EXPECT_EQ(cut("v -.5 0.1 0.2"), "-0.|0.1|0.2");
  EXPECT_EQ(cut("v -. 0.1 0.2"), "-0.|0.1|0.2");
}

TEST(VertexText, IsTestedForItsMinusASecondTimeWhenItWasShortened) {
  // Without its "v " and first digit the line is "2 -2 3": the minus of y stands at position 3.
  EXPECT_EQ(cut("v 12 -2 3"), "-2|3|");
  EXPECT_EQ(cut("v 12 -.512 3"), "-0.12|3|");
  EXPECT_EQ(cut("v 1 -2 3"), "|-2|3");
  EXPECT_EQ(cut("v 0.5 -2 3"), ".5|-2|3");
}

TEST(VertexText, OfTwoBlanksBehindXLosesOne) {
  EXPECT_EQ(cut("v 0.5  0.1 0.2"), ".5|0.1|0.2");
  EXPECT_EQ(cut("v 0.5   0.1 0.2"), ".5||0.1 0.2");
  EXPECT_EQ(cut("v 0.5 0.1  0.2"), ".5|0.1| 0.2");
}

TEST(VertexText, ThatIsNotThereIsEmpty) {
  EXPECT_EQ(cut("v "), "||");
  EXPECT_EQ(cut("v 0.5"), ".5||");
  EXPECT_EQ(cut("v 0.5 0.1"), ".5|0.1|");
  EXPECT_EQ(cut("v -0.5"), "-0.5||");
}

TEST(VertexText, OfZIsTheRestOfTheLine) {
  EXPECT_EQ(cut("v 0.5 0.1 0.2 1.0"), ".5|0.1|0.2 1.0");
}

TEST(VertexPosition, IsTheLeadingNumberOfEachText) {
  EXPECT_EQ(positionOf({".5", "0.25", " 3 1.0"}), (Position{0.5F, 0.25F, 3}));
  EXPECT_EQ(positionOf({"", "nan", "inf"}), (Position{0, 0, 0}));
  EXPECT_EQ(positionOf({"-1e2", "2D1", "1e-99"}), (Position{-100, 20, 0}));
}

TEST(VertexPosition, BeyondSinglePrecisionIsAnOverflow) {
  EXPECT_EQ(tests::errorNumber([] { positionOf({"1e39", "0", "0"}); }), kOverflow);
  EXPECT_EQ(tests::errorNumber([] { positionOf({"0", "0", "-1e999"}); }), kOverflow);
}

}  // namespace
}  // namespace norvik::obj
