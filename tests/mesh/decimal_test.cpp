// Numbers worked out as people write them.

#include "mesh/decimal.h"

#include "support/error_number.h"

#include <gtest/gtest.h>

namespace norvik::obj {
namespace {

std::string plain(std::string_view text) {
  return Decimal(text).text();
}

TEST(Decimal, IsReadAsTheLeadingNumber) {
  EXPECT_EQ(plain("12.50"), "12.5");
  EXPECT_EQ(plain("  -0.5 1"), "-.5");
  EXPECT_EQ(plain("+.25x"), ".25");
  EXPECT_EQ(plain("0012"), "12");
  EXPECT_EQ(plain("1.5e2"), "150");
  EXPECT_EQ(plain("1.5D-3"), ".0015");
  EXPECT_EQ(plain("1.2.3"), "1.2");
  EXPECT_EQ(plain("7e"), "7");
  for (const char* nothing : {"", " ", "-", ".", "x1", "-0", "0.000", "0e5"}) {
    EXPECT_EQ(plain(nothing), "0") << nothing;
  }
}

TEST(Decimal, OfADoubleIsTheShortestThatIsIt) {
  EXPECT_EQ(Decimal(0.1).text(), ".1");
  EXPECT_EQ(Decimal(-600.0).text(), "-600");
  EXPECT_EQ(Decimal(1e-7).text(), ".0000001");
}

TEST(Decimal, AddsExactly) {
  EXPECT_EQ((Decimal("0.1") + Decimal("0.2")).text(), ".3");
  EXPECT_EQ((Decimal("0.1") - Decimal("0.1")).text(), "0");
  EXPECT_EQ((Decimal("-0.1") + Decimal("0.25")).text(), ".15");
  EXPECT_EQ((Decimal("0.1") - Decimal("12.5")).text(), "-12.4");
  EXPECT_EQ((Decimal("99.95") + Decimal("0.05")).text(), "100");
  EXPECT_EQ((Decimal("-1") + Decimal("-2")).text(), "-3");
}

TEST(Decimal, DividesTo28Digits) {
  EXPECT_EQ((Decimal("60") / Decimal("600")).text(), ".1");
  EXPECT_EQ((Decimal("-90") / Decimal("600")).text(), "-.15");
  EXPECT_EQ((Decimal("1") / Decimal("3")).text(), "." + std::string(28, '3'));
  EXPECT_EQ((Decimal("2") / Decimal("3")).text(), "." + std::string(27, '6') + "7");
  EXPECT_EQ((Decimal("10") / Decimal("600")).text(),
            ".0"
            "1" +
                std::string(26, '6') + "7");
  EXPECT_EQ((Decimal("0") / Decimal("600")).text(), "0");
  EXPECT_EQ((Decimal("123456") / Decimal("0.5")).text(), "246912");
  EXPECT_EQ(tests::errorNumber([] { static_cast<void>(Decimal("1") / Decimal("0")); }), 11);
}

TEST(Decimal, RoundsHalvesToTheEvenDigit) {
  const std::string digits(27, '1');
  EXPECT_EQ((Decimal(digits + "25") + Decimal("0")).text(), digits + "20");
  EXPECT_EQ(plain(digits + "35"), digits + "40");
  EXPECT_EQ(plain(digits + "251"), digits + "300");
  EXPECT_EQ(plain(std::string(29, '9')), "1" + std::string(29, '0'));
}

}  // namespace
}  // namespace norvik::obj
