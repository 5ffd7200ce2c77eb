#include "text/line_starts.h"

#include "support/random_text.h"

#include <gtest/gtest.h>

namespace norvik::text {

namespace {

using tests::RandomText;

constexpr std::string_view kPieces[] = {
    "g", " ", "x", "\r\n", "\r\n", "\n", "\r", "g a line of thirty characters.", "\x8D", "\t"};

std::size_t plainLineStart(const std::string& text, std::size_t start, std::string_view wanted) {
  for (std::size_t at = start; at < text.size(); ++at) {
    const bool lineStart = at == start || isLineEnd(text[at - 1]);
    if (lineStart && wanted.find(text[at]) != std::string_view::npos) return at;
  }
  return text.size();
}

TEST(LineStarts, AreFoundByTheirFirstCharacter) {
  EXPECT_EQ(findLineStart("", 0, 'g'), 0U);
  EXPECT_EQ(findLineStart("g a\r\nv g\r\ng b\r\n", 0, 'g'), 0U);
  EXPECT_EQ(findLineStart("g a\r\nv g\r\ng b\r\n", 5, 'g'), 10U);
  EXPECT_EQ(findLineStart("v 1\r\n v g\r\n", 0, 'g'), 11U);
  EXPECT_EQ(findLineStart("v 1\r\n v g\r\n", 0, ' ', 'g'), 5U);
  EXPECT_EQ(findLineStart("v\rg\n", 0, 'g'), 2U);
}

TEST(LineStarts, AreFoundWhereAChunkBegins) {
  const std::string line(ByteChunk::kSize - 2, 'v');
  for (const char* ending : {"\r\n", "\n\n", "\r\r"}) {
    EXPECT_EQ(findLineStart(line + ending + "g" + line + line, 0, 'g'), ByteChunk::kSize);
  }
  EXPECT_EQ(findLineStart(line + "vvg" + line + line, 0, 'g'), line.size() * 3 + 3);
}

TEST(LineStarts, AgreeWithAPlainLoop) {
  RandomText random(7);
  for (int round = 0; round < 4000; ++round) {
    const std::string text = random.of(kPieces, random.below(300));
    const std::size_t start = random.below(text.size() + 1);
    ASSERT_EQ(findLineStart(text, start, 'g', ' '), plainLineStart(text, start, "g "))
        << testing::PrintToString(text) << " from " << start;
  }
}

TEST(LineStarts, StandBehindTheEndingOfTheLineBefore) {
  EXPECT_EQ(behindLineEnd("a\r\nb", 1), 3U);
  EXPECT_EQ(behindLineEnd("a\nb", 1), 2U);
  EXPECT_EQ(behindLineEnd("a\r\rb", 1), 2U);
  EXPECT_EQ(behindLineEnd("a\n\rb", 1), 2U);
  EXPECT_EQ(behindLineEnd("a\r", 1), 2U);
  EXPECT_EQ(behindLineEnd("a", 1), 1U);
}

}  // namespace

}  // namespace norvik::text
