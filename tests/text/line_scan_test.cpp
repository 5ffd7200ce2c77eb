#include "text/line_scan.h"

#include "support/random_text.h"

#include <gtest/gtest.h>

namespace norvik::text {

namespace {

using tests::RandomText;

constexpr std::string_view kPieces[] = {"a",    "\r\n",     "\r\n",
                                        "\n",   "\r",       "\x8D",
                                        "\x8A", "\x0B\x0C", "a long line of thirty characters"};
constexpr std::string_view kConventional[] = {"a", "\r\n", "b"};

std::size_t plainLineEnd(const std::string& text, std::size_t start) {
  const auto at = text.find_first_of("\r\n", start);
  return at == std::string::npos ? text.size() : at;
}

/// The line endings of a text, and whether any differs from CR LF.
struct Endings {
  std::uint64_t count = 0;
  bool odd = false;
};

Endings plainEndings(const std::string& text) {
  Endings result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool pair = text.compare(i, 2, "\r\n") == 0;
    if (text[i] != '\r' && text[i] != '\n') continue;
    ++result.count;
    if (pair) {
      ++i;
    } else {
      result.odd = true;
    }
  }
  return result;
}

TEST(LineScan, FindsLineEnds) {
  EXPECT_EQ(findLineEnd("", 0), 0U);
  EXPECT_EQ(findLineEnd("abc", 0), 3U);
  EXPECT_EQ(findLineEnd("abc", 3), 3U);
  EXPECT_EQ(findLineEnd("abc\r\n", 0), 3U);
  EXPECT_EQ(findLineEnd("abc\r\n", 4), 4U);
  EXPECT_EQ(findLineEnd("a\nb\rc", 2), 3U);
}

TEST(LineScan, CountsLineEndings) {
  EXPECT_EQ(countLines(""), 0U);
  EXPECT_EQ(countLines("a"), 0U);
  EXPECT_EQ(countLines("a\r\nb\rc\nd"), 3U);
  EXPECT_EQ(countLines("\r\r\n\n"), 3U);
  EXPECT_EQ(countLines("a\r"), 1U);
}

TEST(LineScan, KnowsConventionalEndings) {
  EXPECT_TRUE(hasConventionalEndings(""));
  EXPECT_TRUE(hasConventionalEndings("a\r\n\r\nb"));
  for (const char* odd : {"\n", "\r", "a\nb", "a\rb", "a\r\nb\n", "a\r\r\n", "\n\r"}) {
    EXPECT_FALSE(hasConventionalEndings(odd)) << testing::PrintToString(odd);
  }
}

TEST(LineScan, KnowsPlainLines) {
  EXPECT_TRUE(hasPlainLines(""));
  EXPECT_TRUE(hasPlainLines("a\r\n\r\nb "));
  EXPECT_TRUE(hasPlainLines("a b\r\n\t c\r\n"));
  const std::string far(200, 'x');
  for (const std::string odd : {" ", " a", "a\r\n b", "\n", "a\r", "a\nb", "a\rb", "a\r\r\n"}) {
    EXPECT_FALSE(hasPlainLines(odd)) << testing::PrintToString(odd);
    EXPECT_FALSE(hasPlainLines(far + "\r\n" + odd + "\r\n" + far + "\r\n"))
        << testing::PrintToString(odd);
  }
}

TEST(LineScan, KnowsEmptyLines) {
  EXPECT_FALSE(hasEmptyLines(""));
  EXPECT_FALSE(hasEmptyLines("a\r\nb\nc\rd"));
  for (const char* text : {"\r\n", "\na", "a\r\n\r\n", "a\n\n", "a\r\r", "a\n\rb", "a\r\r\n"}) {
    EXPECT_TRUE(hasEmptyLines(text)) << testing::PrintToString(text);
  }
}

TEST(LineScan, AgreesWithPlainLoops) {
  RandomText random(5);
  for (int round = 0; round < 2000; ++round) {
    const std::string text = random.below(2) == 0 ? random.of(kPieces, random.below(120))
                                                  : random.of(kConventional, random.below(120));
    const std::size_t start = random.below(text.size() + 1);
    ASSERT_EQ(findLineEnd(text, start), plainLineEnd(text, start)) << testing::PrintToString(text);
    const Endings endings = plainEndings(text);
    ASSERT_EQ(countLines(text), endings.count) << testing::PrintToString(text);
    ASSERT_EQ(hasConventionalEndings(text), !endings.odd) << testing::PrintToString(text);
  }
}

TEST(LineScan, CountsWhereEveryByteIsALineEnd) {
  // More than any counter of one byte holds.
  for (const std::size_t length : {31U, 32U, 33U, 8159U, 8160U, 8161U, 8192U, 100000U}) {
    EXPECT_EQ(countLines(std::string(length, '\n')), length);
    EXPECT_EQ(countLines(std::string(length, '\r')), length);
  }
}

}  // namespace

}  // namespace norvik::text
