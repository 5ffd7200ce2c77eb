#include "text/file_changes.h"

#include "support/drive.h"
#include "support/random_text.h"
#include "text/line_feed.h"

#include <gtest/gtest.h>

namespace norvik::tests {

namespace {

using text::Change;
using text::LineRange;

class FileChangesTest : public testing::Test, public Drive {
 protected:
  std::vector<Change> compare(const std::string& before, const std::string& after) {
    folder.write("before", before);
    folder.write("after", after);
    return text::compareFiles(
        *host, folder.path("before"), folder.path("after"), [](std::string_view line) {
          return line.starts_with("actor ") ? std::string{line} : std::string{};
        });
  }
  std::vector<std::string> linesOf(const char* file, const LineRange& range) {
    std::vector<std::string> lines;
    for (std::uint64_t i = 0; i < range.count; ++i) {
      lines.push_back(text::lineOf(*host, folder.path(file), range, i));
    }
    return lines;
  }
  /// The changes as "section first: -removed +added".
  std::string told(const std::string& before, const std::string& after) {
    std::string result;
    for (const Change& change : compare(before, after)) {
      result += change.section + " " + std::to_string(change.before.first) + "/" +
                std::to_string(change.after.first) + ":";
      for (const auto& line : linesOf("before", change.before)) result += " -" + line;
      for (const auto& line : linesOf("after", change.after)) result += " +" + line;
      result += "\n";
    }
    return result;
  }
};

TEST_F(FileChangesTest, EqualFilesHaveNone) {
  EXPECT_EQ(told("", ""), "");
  EXPECT_EQ(told("a\r\nb\r\n", "a\r\nb\r\n"), "");
  EXPECT_EQ(told("a\r\nb", "a\nb\r"), "") << "line ends do not count";
}

TEST_F(FileChangesTest, LinesGoAndCome) {
  EXPECT_EQ(told("", "a\n"), " 0/0: +a\n");
  EXPECT_EQ(told("a\n", ""), " 0/0: -a\n");
  EXPECT_EQ(told("a\nb\nc\n", "a\nc\n"), " 1/1: -b\n");
  EXPECT_EQ(told("a\nc\n", "a\nb\nc\n"), " 1/1: +b\n");
  EXPECT_EQ(told("a\nb\nc\n", "a\nB\nc\n"), " 1/1: -b +B\n");
  EXPECT_EQ(told("a\nb\nc\nd\ne\n", "A\nb\nc\nd\nE\n"), " 0/0: -a +A\n 4/4: -e +E\n");
  EXPECT_EQ(told("a\n\nb\n", "a\nb\n"), " 1/1: -\n");
}

TEST_F(FileChangesTest, AChangeIsOfItsSection) {
  EXPECT_EQ(told("x\nactor a\n1\nactor b\n2\n", "y\nactor a\n1\n3\nactor b\n4\n"),
            " 0/0: -x +y\nactor a 3/3: +3\nactor b 4/5: -2 +4\n");
  EXPECT_EQ(told("actor a\n1\nactor b\n2\n", "actor a\n1\n"), "actor b 2/2: -actor b -2\n");
  EXPECT_EQ(told("actor a\n1\n", "actor a\n1\nactor b\n2\n"), "actor b 2/2: +actor b +2\n");
}

TEST_F(FileChangesTest, ALongInsertionIsOneChange) {
  const auto dial = [](int number) {
    std::string text = "targetGeom " + std::to_string(number) + "\n{\ninitValue 0\nhidden 0\n";
    for (int i = 0; i < 300; ++i) text += "d " + std::to_string(i * number) + " 0.1\n";
    return text + "}\n";
  };
  std::string before;
  std::string after;
  for (int number = 1; number < 60; ++number) {
    if (number != 30) before += dial(number);
    after += dial(number);
  }
  const auto changes = compare(before, after);
  ASSERT_EQ(changes.size(), 1U);
  EXPECT_EQ(changes[0].before.count, 0U);
  EXPECT_EQ(changes[0].after.count, 305U);
  const auto lines = linesOf("after", changes[0].after);
  EXPECT_EQ(lines.front(), "targetGeom 30");
  EXPECT_EQ(lines[200], "d " + std::to_string(196 * 30) + " 0.1");
  EXPECT_EQ(lines.back(), "}");
}

TEST_F(FileChangesTest, AMissingFileHasNoLines) {
  folder.write("after", "a\n");
  const auto changes = text::compareFiles(*host, folder.path("gone"), folder.path("after"),
                                          [](std::string_view) { return std::string{}; });
  ASSERT_EQ(changes.size(), 1U);
  EXPECT_EQ(changes[0].after.count, 1U);
}

/// What goes and what comes, put together with what stays, makes one file of the other.
TEST_F(FileChangesTest, TheChangesMakeOneOfTheOther) {
  constexpr std::string_view kPieces[] = {"a\n", "b\n", "c\n", "\n", "actor x\n", "d 1 2 3\n"};
  RandomText random(7);
  for (int round = 0; round < 200; ++round) {
    const std::string before = random.of(kPieces, random.below(600));
    std::string after = before;
    for (std::size_t edits = random.below(5); edits > 0; --edits) {
      const auto line = [&] { return after.rfind('\n', random.below(after.size() + 1)) + 1; };
      const std::size_t from = after.empty() ? 0 : line();
      const std::size_t to = after.empty() ? 0 : std::max(from, line());
      after.replace(from, to - from, random.of(kPieces, random.below(200)));
    }
    std::string made;
    text::LineFeed feed(*host, folder.path("before"));
    const auto changes = compare(before, after);
    text::LineFeed old(*host, folder.path("before"));
    std::uint64_t line = 0;
    for (const Change& change : changes) {
      while (line < change.before.first && old.next()) {
        made += std::string{old.line()} + "\n";
        ++line;
      }
      for (std::uint64_t i = 0; i < change.before.count; ++i, ++line) EXPECT_TRUE(old.next());
      for (const auto& added : linesOf("after", change.after)) made += added + "\n";
    }
    while (old.next()) made += std::string{old.line()} + "\n";
    ASSERT_EQ(made, after) << "round " << round;
  }
}

TEST_F(FileChangesTest, LinesEndInThreeWays) {
  folder.write("f", "a\r\nb\nc\rd\r\r\n\ne");
  text::LineFeed feed(*host, folder.path("f"));
  std::vector<std::string> lines;
  std::vector<std::uint64_t> offsets;
  while (feed.next()) {
    lines.emplace_back(feed.line());
    offsets.push_back(feed.offset());
  }
  EXPECT_EQ(lines, (std::vector<std::string>{"a", "b", "c", "d", "", "", "e"}));
  EXPECT_EQ(offsets, (std::vector<std::uint64_t>{0, 3, 5, 7, 9, 11, 12}));
}

TEST_F(FileChangesTest, ALineOverSeveralBlocksIsTakenWhole) {
  const std::string longLine(3 * text::kBlockSize, 'x');
  EXPECT_EQ(compare(longLine + "y\nb\n", longLine + "z\nb\n").size(), 1U);
  EXPECT_EQ(compare(longLine + "y\nb\n", longLine + "y\nb\n").size(), 0U);
}

}  // namespace

}  // namespace norvik::tests
