#include "text/line_filter.h"

#include "support/random_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace norvik::text {

namespace {

using tests::RandomText;

TEST(LineFilter, FindsTheFirstToken) {
  const LineFilter filter{anywhere("targetGeom"), atStart("actor"), anywhere("}")};
  EXPECT_EQ(filter.find("a\r\nactor hip\r\n}"), 3U);
  EXPECT_EQ(filter.find("x actor\r\n}"), 9U);
  EXPECT_EQ(filter.find("actor"), 0U);
  EXPECT_EQ(filter.find("\ttargetGeom Smile\r\nactor"), 1U);
  EXPECT_EQ(filter.find("acto"), 4U);
  EXPECT_EQ(filter.find(""), 0U);
}

TEST(LineFilter, WithoutTokensFindsNothing) {
  EXPECT_EQ(LineFilter{}.find("abc"), 3U);
}

TEST(LineFilter, AnEmptyTokenIsInEveryLine) {
  EXPECT_EQ(LineFilter{anywhere("")}.find("abc"), 0U);
  EXPECT_EQ((LineFilter{anywhere("c"), anywhere("")}.find("abc")), 0U);
}

TEST(LineFilter, OverlappingTriesMissNothing) {
  EXPECT_EQ(LineFilter{anywhere("aab")}.find("aaab"), 1U);
  EXPECT_EQ(LineFilter{anywhere("abab1")}.find("ababab1"), 2U);
  EXPECT_EQ((LineFilter{anywhere("longer token"), anywhere("token")}.find("a longer token")), 2U);
  EXPECT_EQ((LineFilter{anywhere("token"), anywhere("longer token")}.find("a longer token")), 2U);
}

std::size_t plainFind(const std::string& block, const std::string& token, bool start) {
  std::size_t at = block.find(token);
  while (start && at != std::string::npos && at != 0 && block[at - 1] != '\n' &&
         block[at - 1] != '\r') {
    at = block.find(token, at + 1);
  }
  return std::min(at, block.size());
}

TEST(LineFilter, AgreesWithAPlainSearch) {
  static constexpr std::string_view kPieces[] = {"a", "b", "A", "\r\n", "\n", "\r", "{", "ab"};
  static constexpr std::string_view kTokenPieces[] = {"a", "b", "A", "{"};
  RandomText random(6);
  for (int round = 0; round < 5000; ++round) {
    const std::string block = random.of(kPieces, random.below(40));
    const std::string one = random.of(kTokenPieces, 1 + random.below(4));
    const std::string two = random.of(kTokenPieces, 1 + random.below(4));
    const bool start = random.below(2) == 0;
    const LineFilter filter{anywhere(one), {two, start}};
    ASSERT_EQ(filter.find(block),
              std::min(plainFind(block, one, false), plainFind(block, two, start)))
        << one << " " << two << " in " << testing::PrintToString(block);
  }
}

}  // namespace

}  // namespace norvik::text
