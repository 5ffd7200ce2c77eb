#include "mesh/obj_number.h"

#include "mesh/exponent_repair.h"
#include "mesh/low_mesh.h"
#include "support/error_number.h"
#include "text/number_text.h"

#include <gtest/gtest.h>

namespace norvik::obj {
namespace {

constexpr int kOverflow = 6;

TEST(LeadingNumber, EndsAtABlankOrATab) {
  EXPECT_EQ(leadingNumber("0.2 0.5"), 0.2);
  EXPECT_EQ(leadingNumber("1 0"), 1);
  EXPECT_EQ(leadingNumber("1\t2"), 1);
  EXPECT_EQ(leadingNumber(" \t 3.5"), 3.5);
}

TEST(LeadingNumber, FollowsTheClassicRule) {
  for (const char* text :
       {"1",    "-1",   "+1",    ".5",  "-.5", "1.",    "1e5",    "1E-5",  "1d3",
        "1e",   "1e+",  "12abc", "--1", "-",   "",      "nan",    "inf",   "-inf",
        "-nan", "0x10", "1.2.3", "1,5", "e5",  "1e400", "1e-400", "-1e400"}) {
    EXPECT_EQ(leadingNumber(text), text::value(text)) << text;
  }
}

TEST(RaisedHeight, TakesOutTheZerosBehindThePoint) {
  EXPECT_EQ(raisedHeight("0.00123 "), "1.23");
  EXPECT_EQ(raisedHeight("0.09 "), ".9");
  EXPECT_EQ(raisedHeight("0.0500 "), "50");
  EXPECT_EQ(raisedHeight(".01 "), ".1");
  EXPECT_EQ(raisedHeight("0.000 "), "0");
  EXPECT_EQ(raisedHeight("0 "), "0");
  EXPECT_EQ(raisedHeight("0.5 "), "5");
}

TEST(RaisedHeight, AddsTheFractionAlsoBelowNothing) {
  EXPECT_EQ(raisedHeight("-0.05 "), ".5");
  EXPECT_EQ(raisedHeight("-2.05 "), "-1.5");
}

TEST(RaisedHeight, OfANumberWithoutAPointIsAllFraction) {
  EXPECT_EQ(raisedHeight("-3 "), "-3");
  EXPECT_EQ(raisedHeight("5e-05 "), "5E-05");
  EXPECT_EQ(raisedHeight(""), "0");
}

TEST(RaisedHeight, BeyondSinglePrecisionIsAnOverflow) {
  EXPECT_EQ(tests::errorNumber([] { raisedHeight("0.1e99 "); }), kOverflow);
}

TEST(WithoutExponent, WritesTheZerosOut) {
  // Exponent 5, the point at 2: four zeros and the digits, 8 characters in all.
  EXPECT_EQ(withoutExponent(" 1.234E-05"), "0.000012");
  EXPECT_EQ(withoutExponent("-1.234E-05"), "0.000012");
  // Without a point: six zeros.
  EXPECT_EQ(withoutExponent(" 5E-05"), "0.000000");
}

TEST(WithoutExponent, ReadsTheExponentFromItsThirdPlaceAndDropsItsSign) {
  EXPECT_EQ(withoutExponent(" 1.5E-12"), "0.015");
  EXPECT_EQ(withoutExponent(" 1.5E+07"), "0.000000");
}

TEST(WithoutExponent, LeavesOtherTextsAsTheyAre) {
  EXPECT_EQ(withoutExponent(" .5"), " .5");
  EXPECT_EQ(withoutExponent("-300"), "-300");
  EXPECT_EQ(withoutExponent(""), "");
}

}  // namespace
}  // namespace norvik::obj
