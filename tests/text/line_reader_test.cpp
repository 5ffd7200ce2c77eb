// The two reads, on texts worked out by hand. Random texts are in line_reader_property_test.cpp.

#include "text/line_reader.h"

#include "support/comma_locale.h"
#include "support/drive.h"
#include "support/error_number.h"
#include "support/memory_file.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::text {

namespace {

using tests::errorNumber;
using tests::MemoryFile;
using Texts = std::vector<std::string>;

LineReader readerOf(std::string text, std::size_t most = std::string::npos) {
  return LineReader(std::make_unique<MemoryFile>(std::move(text), most));
}

Texts linesOf(const std::string& text) {
  LineReader in = readerOf(text);
  Texts lines;
  while (!in.atEnd()) lines.emplace_back(in.line());
  return lines;
}

Texts fieldsOf(const std::string& text) {
  LineReader in = readerOf(text);
  Texts fields;
  while (!in.atEnd()) fields.emplace_back(in.field());
  return fields;
}

TEST(LineRead, EndsAtEachKindOfLineEnd) {
  EXPECT_EQ(linesOf("a\r\nb\nc\rd"), (Texts{"a", "b", "c", "d"}));
  EXPECT_EQ(linesOf("a\r\n"), Texts{"a"});
  EXPECT_EQ(linesOf("a"), Texts{"a"});
  EXPECT_EQ(linesOf(""), Texts{});
}

TEST(LineRead, KeepsEmptyLines) {
  EXPECT_EQ(linesOf("\r\n"), Texts{""});
  EXPECT_EQ(linesOf("\n\n"), (Texts{"", ""}));
  EXPECT_EQ(linesOf("\r\r"), (Texts{"", ""}));
  // LF CR is two ends, and so is CR CR LF.
  EXPECT_EQ(linesOf("a\n\rb"), (Texts{"a", "", "b"}));
  EXPECT_EQ(linesOf("a\r\r\nb"), (Texts{"a", "", "b"}));
}

TEST(LineRead, KeepsIndentationAndEveryByte) {
  const std::string odd("\t \"x\",\0\xFF\x1A ", 10);
  EXPECT_EQ(linesOf(odd + "\r\n" + odd), (Texts{odd, odd}));
}

TEST(LineRead, PastTheEndIs62) {
  LineReader in = readerOf("a\r\n");
  EXPECT_EQ(in.line(), "a");
  EXPECT_TRUE(in.atEnd());
  EXPECT_EQ(errorNumber([&] { in.line(); }), 62);
  EXPECT_EQ(errorNumber([&] { in.field(); }), 62);
  EXPECT_EQ(errorNumber([&] { in.line(); }), 62);
  LineReader empty = readerOf("");
  EXPECT_EQ(errorNumber([&] { empty.line(); }), 62);
  LineReader other = readerOf("");
  EXPECT_EQ(errorNumber([&] { other.field(); }), 62);
}

TEST(LineRead, LinesMayBeLongerThanTheBlock) {
  const std::string longer(5 * kBlockSize + 7, 'x');
  for (const char* end : {"\r\n", "\n", "\r"}) {
    std::string text = "a";
    text.append(end).append(longer).append(end).append("b").append(end);
    EXPECT_EQ(linesOf(text), (Texts{"a", longer, "b"}));
  }
  EXPECT_EQ(linesOf(longer), Texts{longer});
}

TEST(LineRead, ABlockMayEndAnywhereAboutALineEnd) {
  for (const std::string end : {"\r\n", "\n", "\r", "\r\r\n", "\n\n"}) {
    for (std::size_t length = kBlockSize - 4; length <= kBlockSize + 1; ++length) {
      const std::string first(length, 'x');
      Texts expected{first, "second"};
      if (end == "\r\r\n" || end == "\n\n") expected.insert(expected.begin() + 1, "");
      EXPECT_EQ(linesOf(first + end + "second" + end.substr(end.size() - 1)), expected)
          << end.size() << " " << length;
    }
  }
}

TEST(FieldRead, EndsAtACommaOrLineEndAndLosesIndentation) {
  EXPECT_EQ(fieldsOf("\t\t actor hip\r\n\t{\r\n"), (Texts{"actor hip", "{"}));
  EXPECT_EQ(fieldsOf("a,b\nc\rd"), (Texts{"a", "b", "c", "d"}));
  EXPECT_EQ(fieldsOf("a, b,\tc"), (Texts{"a", "b", "c"}));
}

TEST(FieldRead, KeepsBlanksInFrontOfACommaOrLineEnd) {
  EXPECT_EQ(fieldsOf("a \t,b  \r\nc "), (Texts{"a \t", "b  ", "c "}));
}

TEST(FieldRead, GivesEmptyItems) {
  EXPECT_EQ(fieldsOf("\r\n\r\na"), (Texts{"", "", "a"}));
  EXPECT_EQ(fieldsOf(",,a"), (Texts{"", "", "a"}));
  EXPECT_EQ(fieldsOf("  \t\r\na"), (Texts{"", "a"}));
}

TEST(FieldRead, AnEmptyItemFollowsACommaAtALinesEnd) {
  EXPECT_EQ(fieldsOf("a,\r\nb"), (Texts{"a", "", "b"}));
  EXPECT_EQ(fieldsOf("a,  \nb,\rc"), (Texts{"a", "", "b", "", "c"}));
}

TEST(FieldRead, GivesAnEmptyItemForBlanksAtTheEndOfTheFile) {
  EXPECT_EQ(fieldsOf("a\r\n \t"), (Texts{"a", ""}));
  EXPECT_EQ(fieldsOf("   "), Texts{""});
}

TEST(FieldRead, AQuotedFieldRunsToTheClosingQuote) {
  EXPECT_EQ(fieldsOf("\"a,b\"\r\nc"), (Texts{"a,b", "c"}));
  EXPECT_EQ(fieldsOf(" \t\" a \" , b"), (Texts{" a ", "b"}));
  EXPECT_EQ(fieldsOf("\"a\r\nb\"\r\nc"), (Texts{"a\r\nb", "c"}));
  EXPECT_EQ(fieldsOf("\"\"\r\n\"\""), (Texts{"", ""}));
}

TEST(FieldRead, WhatFollowsAClosingQuoteIsTheNextFieldUnlessItIsBlank) {
  EXPECT_EQ(fieldsOf("\"a\" \t \r\nb"), (Texts{"a", "b"}));
  EXPECT_EQ(fieldsOf("\"a\"b,c"), (Texts{"a", "b", "c"}));
  EXPECT_EQ(fieldsOf("\"a\"  b \r\nc"), (Texts{"a", "b ", "c"}));
  EXPECT_EQ(fieldsOf("\"a\"\"b\""), (Texts{"a", "b"}));
  EXPECT_EQ(fieldsOf("\"a\",\r\nb"), (Texts{"a", "", "b"}));
  EXPECT_EQ(fieldsOf("\"a\"  "), Texts{"a"});
}

TEST(FieldRead, AQuoteThatNeverClosesRunsToTheEndOfTheFile) {
  EXPECT_EQ(fieldsOf("a,\"b,c\r\nd\r\n"), (Texts{"a", "b,c\r\nd\r\n"}));
  EXPECT_EQ(fieldsOf("\""), Texts{""});
}

TEST(FieldRead, AQuoteInsideAFieldIsACharacter) {
  EXPECT_EQ(fieldsOf("name \"hip\", x\"y"), (Texts{"name \"hip\"", "x\"y"}));
}

TEST(FieldRead, FieldsMayBeLongerThanTheBlock) {
  const std::string longer(3 * kBlockSize + 5, 'x');
  EXPECT_EQ(fieldsOf(longer + "," + longer + "\r\n\"" + longer + ",\"" + longer),
            (Texts{longer, longer, longer + ",", longer}));
  const std::string blanks(2 * kBlockSize + 3, ' ');
  EXPECT_EQ(fieldsOf(blanks + "a\r\n\"b\"" + blanks + ",c"), (Texts{"a", "b", "c"}));
}

TEST(FieldRead, ABlockMayEndAnywhereAboutAField) {
  for (std::size_t length = kBlockSize - 6; length <= kBlockSize + 1; ++length) {
    const std::string first(length, 'x');
    EXPECT_EQ(fieldsOf(first + "\r\n\"q\" \r\n  b"), (Texts{first, "q", "b"})) << length;
    EXPECT_EQ(fieldsOf("\"" + first + "\" \r\nb"), (Texts{first, "b"})) << length;
    EXPECT_EQ(fieldsOf("\"" + first + "\" b"), (Texts{first, "b"})) << length;
  }
}

TEST(BothReads, ShareOnePosition) {
  LineReader in = readerOf("one\r\n\ttwo, three, four\r\n  five\r\n\"six\" seven\r\neight");
  EXPECT_EQ(in.position(), 0U);
  EXPECT_EQ(in.field(), "one");
  EXPECT_EQ(in.position(), 5U);
  EXPECT_TRUE(in.atLineStart());
  EXPECT_EQ(in.field(), "two");
  EXPECT_EQ(in.position(), 10U);
  EXPECT_FALSE(in.atLineStart());
  EXPECT_EQ(in.line(), " three, four");
  EXPECT_TRUE(in.atLineStart());
  EXPECT_EQ(in.line(), "  five");
  EXPECT_EQ(in.field(), "six");
  EXPECT_FALSE(in.atLineStart());
  EXPECT_EQ(in.line(), " seven");
  EXPECT_EQ(in.position(), 45U);
  EXPECT_EQ(in.line(), "eight");
  EXPECT_EQ(in.position(), 50U);
}

TEST(BothReads, TheRestOfALineBehindItsLastCommaIsEmpty) {
  LineReader in = readerOf("a,\r\nb\r\n");
  EXPECT_EQ(in.field(), "a");
  EXPECT_EQ(in.line(), "");
  EXPECT_EQ(in.line(), "b");
}

TEST(BothReads, AskingForTheEndMovesNothing) {
  LineReader in = readerOf("a\r\nb", 1);
  EXPECT_FALSE(in.atEnd());
  EXPECT_EQ(in.position(), 0U);
  EXPECT_EQ(in.line(), "a");
  EXPECT_FALSE(in.atEnd());
  EXPECT_EQ(in.position(), 3U);
  EXPECT_EQ(in.line(), "b");
  EXPECT_TRUE(in.atEnd());
  EXPECT_EQ(in.position(), 4U);
}

TEST(SkipLines, PassesOverLinesWithoutATokenAndCountsThem) {
  LineReader in = readerOf("a\r\nb\n\rthe token\r\ntoken\r\nc");
  EXPECT_EQ(in.skipLines({anywhere("token")}), 3U);
  EXPECT_EQ(in.line(), "the token");
  EXPECT_EQ(in.skipLines({anywhere("token")}), 0U);
  EXPECT_EQ(in.line(), "token");
  EXPECT_EQ(in.skipLines({anywhere("token")}), 1U);
  EXPECT_TRUE(in.atEnd());
  EXPECT_EQ(in.skipLines({anywhere("token")}), 0U);
}

TEST(SkipLines, ATokenAtTheStartCountsThereAlone) {
  LineReader in = readerOf("\tactor a\r\nan actor\r\nactor b");
  EXPECT_EQ(in.skipLines({atStart("actor")}), 2U);
  EXPECT_EQ(in.line(), "actor b");
}

TEST(SkipLines, StopsAtTheFirstOfSeveralTokens) {
  LineReader in = readerOf("x\r\ny two\r\none\r\n");
  EXPECT_EQ(in.skipLines({anywhere("one"), anywhere("two")}), 1U);
  EXPECT_EQ(in.line(), "y two");
}

TEST(SkipLines, DoesNothingInTheMiddleOfALine) {
  LineReader in = readerOf("a, b\r\nc\r\n");
  EXPECT_EQ(in.field(), "a");
  EXPECT_EQ(in.skipLines({anywhere("c")}), 0U);
  EXPECT_EQ(in.line(), " b");
}

TEST(SkipLines, WithoutATokenPassesOverAll) {
  LineReader in = readerOf("a\r\n\r\nb");
  EXPECT_EQ(in.skipLines({}), 3U);
  EXPECT_TRUE(in.atEnd());
}

TEST(HandOnLines, HandsOverTheBytesAsTheyAre) {
  LineReader in = readerOf("a\nb\r\n\rtoken\r\nc", 2);
  std::string passed;
  in.handOnLines({anywhere("token")}, [&](std::string_view lines) { passed += lines; });
  EXPECT_EQ(passed, "a\nb\r\n\r");
  EXPECT_EQ(in.line(), "token");
  in.handOnLines({anywhere("token")}, [&](std::string_view lines) { passed += lines; });
  EXPECT_EQ(passed, "a\nb\r\n\rc");
}

TEST(BothReads, AreDeafToTheUsersLocale) {
  const tests::CommaLocale locale;
  // What other systems count as blanks and line ends.
  const std::string odd = "\xA0\x85\x0B\x0C";
  EXPECT_EQ(linesOf(odd + "a\r\n1.5,2"), (Texts{odd + "a", "1.5,2"}));
  EXPECT_EQ(fieldsOf(odd + "a\r\n1.5,2"), (Texts{odd + "a", "1.5", "2"}));
}

TEST(LineReader, ReadsAFileOfTheDisk) {
  const tests::Drive drive;
  drive.folder.write("f", "a\r\nb");
  LineReader in(drive.disk, "C:\\f");
  EXPECT_EQ(in.line(), "a");
  EXPECT_EQ(in.line(), "b");
  EXPECT_EQ(errorNumber([&] { LineReader(drive.disk, "C:\\missing"); }), 53);
  EXPECT_EQ(errorNumber([&] { LineReader(drive.disk, "C:\\"); }), 75);
}

/// A file that breaks off.
class BrokenFile final : public HostFile {
 public:
  int read(char* into, std::size_t, std::size_t& got) override {
    got = 0;
    if (reads_++ > 0) return EIO;
    *into = 'a';
    got = 1;
    return 0;
  }
  int write(std::string_view) override { return EIO; }
  int seek(std::uint64_t) override { return EIO; }
  int size(std::uint64_t&) override { return EIO; }
  int sync() override { return EIO; }

 private:
  int reads_ = 0;
};

TEST(LineReader, AMediumThatFailsIsADeviceError) {
  LineReader in(std::make_unique<BrokenFile>());
  EXPECT_EQ(errorNumber([&] { in.line(); }), 57);
  LineReader other(std::make_unique<BrokenFile>());
  EXPECT_EQ(errorNumber([&] { other.field(); }), 57);
}

}  // namespace

}  // namespace norvik::text
