#include "text/number_text.h"

#include "support/comma_locale.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace norvik::text {

namespace {

void expectNumberTexts() {
  EXPECT_EQ(numberText(0.0F), " 0");
  EXPECT_EQ(numberText(-0.0F), " 0");
  EXPECT_EQ(numberText(1.0F), " 1");
  EXPECT_EQ(numberText(-1.0F), "-1");
  EXPECT_EQ(numberText(0.5F), " .5");
  EXPECT_EQ(numberText(-0.5F), "-.5");
  EXPECT_EQ(numberText(0.1F), " .1");
  EXPECT_EQ(numberText(0.05F), " .05");
  EXPECT_EQ(numberText(100.0F), " 100");
  EXPECT_EQ(numberText(-120.25F), "-120.25");
  EXPECT_EQ(numberText(204.8F), " 204.8");
  EXPECT_EQ(numberText(1.0F / 3.0F), " .3333333");
  EXPECT_EQ(numberText(2.0F / 3.0F), " .6666667");
  EXPECT_EQ(numberText(-200.0F / 3.0F), "-66.66666");  // 66.666664123...
}

TEST(NumberText, WritesSevenDigitsAndNoZeroBeforeThePoint) {
  expectNumberTexts();
}

TEST(NumberText, WritesAnExponentAboveSevenDigits) {
  EXPECT_EQ(numberText(1234567.0F), " 1234567");
  EXPECT_EQ(numberText(9999999.0F), " 9999999");
  EXPECT_EQ(numberText(1000000.0F), " 1000000");
  EXPECT_EQ(numberText(10000000.0F), " 1E+07");
  // Single precision has no halves here: this is ten millions.
  EXPECT_EQ(numberText(9999999.5F), " 1E+07");
  EXPECT_EQ(numberText(12345678.0F), " 1.234568E+07");
  EXPECT_EQ(numberText(-16777216.0F), "-1.677722E+07");
  EXPECT_EQ(numberText(1.5e10F), " 1.5E+10");
  EXPECT_EQ(numberText(std::numeric_limits<float>::max()), " 3.402823E+38");
}

TEST(NumberText, WritesAnExponentBelowATenThousandth) {
  EXPECT_EQ(numberText(0.001F), " .001");
  EXPECT_EQ(numberText(0.0001F), " .0001");
  EXPECT_EQ(numberText(0.00012345F), " .00012345");
  EXPECT_EQ(numberText(0.00001F), " 1E-05");
  EXPECT_EQ(numberText(0.00001234F), " 1.234E-05");
  EXPECT_EQ(numberText(-0.00001234F), "-1.234E-05");
  EXPECT_EQ(numberText(2.5e-10F), " 2.5E-10");
  EXPECT_EQ(numberText(std::numeric_limits<float>::min()), " 1.175494E-38");
  EXPECT_EQ(numberText(std::numeric_limits<float>::denorm_min()), " 1.401298E-45");
}

TEST(NumberText, TheExponentIsThatOfTheRoundedNumber) {
  EXPECT_EQ(numberText(0.000099999999F), " .0001");
  EXPECT_EQ(numberText(0.99999999F), " 1");
  EXPECT_EQ(numberText(999999.94F), " 999999.9");
}

TEST(NumberText, RoundsExactHalvesToTheEvenDigit) {
  EXPECT_EQ(numberText(1048576.5F), " 1048576");
  EXPECT_EQ(numberText(1048577.5F), " 1048578");
}

TEST(NumberText, WritesWholeNumbersWithAllDigits) {
  EXPECT_EQ(wholeNumberText(0), " 0");
  EXPECT_EQ(wholeNumberText(123456789012), " 123456789012");
  EXPECT_EQ(wholeNumberText(-7), "-7");
  EXPECT_EQ(wholeNumberText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

void expectValues() {
  EXPECT_EQ(value("12"), 12);
  EXPECT_EQ(value("1.5"), 1.5);
  EXPECT_EQ(value("-1.5"), -1.5);
  EXPECT_EQ(value("+1.5"), 1.5);
  EXPECT_EQ(value(".5"), 0.5);
  EXPECT_EQ(value("-.5"), -0.5);
  EXPECT_EQ(value("+.5"), 0.5);
  EXPECT_EQ(value("5."), 5);
  EXPECT_EQ(value("1.234E-05"), 1.234e-05);
  EXPECT_EQ(value("1e3"), 1000);
  EXPECT_EQ(value("1E+3"), 1000);
  EXPECT_EQ(value("1d3"), 1000);
}

TEST(Value, ReadsTheLeadingNumber) {
  expectValues();
  EXPECT_EQ(value("12abc"), 12);
  EXPECT_EQ(value("1.5.7"), 1.5);
  EXPECT_EQ(value("1,5"), 1);
  EXPECT_EQ(value("3-2"), 3);
  EXPECT_EQ(value("7 apples"), 7);
  EXPECT_EQ(value("1e3.5"), 1000);
  EXPECT_EQ(value("1e3e4"), 1000);
  EXPECT_EQ(value("2\r\n3"), 2);
}

TEST(Value, SkipsBlanksWhereverTheyStand) {
  EXPECT_EQ(value("  12"), 12);
  EXPECT_EQ(value("\t 1 2\t3 "), 123);
  EXPECT_EQ(value("- 5"), -5);
  EXPECT_EQ(value("1 e 3"), 1000);
}

TEST(Value, LeavesOutAnExponentWithoutDigits) {
  EXPECT_EQ(value("5e"), 5);
  EXPECT_EQ(value("5e+"), 5);
  EXPECT_EQ(value("5 east"), 5);
}

TEST(Value, IsZeroWithoutANumber) {
  for (const char* text : {"", " ", "abc", "-", "+", ".", "-.", "e5", ".e5", "--5", "+-5", "-+5",
                           "inf", "nan", "infinity", "*5", "\"5"}) {
    EXPECT_EQ(value(text), 0) << text;
  }
  EXPECT_EQ(value(std::string_view("\0005", 2)), 0);
  EXPECT_EQ(value(std::string_view("5\0006", 3)), 5);
}

TEST(Value, BeyondTheRangeIsInfiniteOrZero) {
  const double infinity = std::numeric_limits<double>::infinity();
  const std::string zeros(400, '0');
  EXPECT_EQ(value("1e400"), infinity);
  EXPECT_EQ(value("-1e400"), -infinity);
  EXPECT_EQ(value("1" + zeros), infinity);
  EXPECT_EQ(value("1" + zeros + "e-5"), infinity);
  EXPECT_EQ(value("1e-400"), 0);
  EXPECT_EQ(value("-1e-400"), 0);
  EXPECT_EQ(value("0." + zeros + "1"), 0);
  EXPECT_EQ(value("." + zeros + "1"), 0);
  EXPECT_EQ(value("-0." + zeros + "1"), 0);
  EXPECT_EQ(value("." + zeros + "1e5"), 0);
  EXPECT_EQ(value("0e999999"), 0);
  EXPECT_EQ(value("1e99999999999999999999"), infinity);
  EXPECT_EQ(value("1e-99999999999999999999"), 0);
  // Long, but within it.
  EXPECT_EQ(value("." + zeros + "1e401"), 1);
  EXPECT_EQ(value("1" + zeros + "e-400"), 1);
}

TEST(LineCount, CountsInSinglePrecision) {
  LineCount count;
  EXPECT_EQ(count.asSingle(), 0.0F);
  ++count;
  EXPECT_EQ(count.asSingle(), 1.0F);
  EXPECT_EQ(count.asSingle(-1), 0.0F);
  EXPECT_EQ(count.asSingle(2), 3.0F);
  count.add(16777214);
  EXPECT_EQ(count.asSingle(), 16777215.0F);
  ++count;
  EXPECT_EQ(count.asSingle(), 16777216.0F);
  ++count;
  EXPECT_EQ(count.asSingle(), 16777216.0F);
  count.add(1U << 30U);
  EXPECT_EQ(count.asSingle(), 16777216.0F);
  EXPECT_EQ(count.asSingle(-1), 16777215.0F);
}

TEST(Numbers, AreDeafToTheUsersLocale) {
  const tests::CommaLocale locale;
  expectNumberTexts();
  expectValues();
  EXPECT_EQ(value("1,5"), 1);
  EXPECT_EQ(wholeNumberText(1234567), " 1234567");
}

}  // namespace

}  // namespace norvik::text
