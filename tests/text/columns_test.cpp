#include "text/columns.h"

#include <gtest/gtest.h>

namespace norvik::text {

namespace {

TEST(Columns, LeftmostAndRightmostStopAtTheText) {
  EXPECT_EQ(leftmost("actor hip", 5), "actor");
  EXPECT_EQ(leftmost("act", 5), "act");
  EXPECT_EQ(leftmost("actor", 0), "");
  EXPECT_EQ(rightmost("figure.cr2", 3), "cr2");
  EXPECT_EQ(rightmost("r2", 3), "r2");
  EXPECT_EQ(rightmost("", 3), "");
}

TEST(Columns, CountFromOne) {
  EXPECT_EQ(from("actor hip", 1), "actor hip");
  EXPECT_EQ(from("actor hip", 7), "hip");
  EXPECT_EQ(from("actor", 5), "r");
  EXPECT_EQ(from("actor", 6), "");
  EXPECT_EQ(from("actor", 60), "");
  EXPECT_EQ(from("", 1), "");
  EXPECT_EQ(column("actor hip", "hip"), 7U);
  EXPECT_EQ(column("actor hip", "actor"), 1U);
  EXPECT_EQ(column("actor hip", "chest"), 0U);
  EXPECT_EQ(column("a:b:c", ":"), 2U);
}

TEST(Columns, TokensCountWithTheirCase) {
  EXPECT_TRUE(holds("\t\ttargetGeom Smile", "targetGeom"));
  EXPECT_FALSE(holds("\t\ttargetGeom Smile", "TargetGeom"));
  EXPECT_TRUE(holds("figureResFiles", "figureResFile"));
  EXPECT_TRUE(begins("actor BODY:1", "actor BODY"));
  EXPECT_FALSE(begins(" actor BODY:1", "actor BODY"));
  EXPECT_FALSE(begins("act", "actor"));
}

TEST(Columns, CutAtATokenOrNotAtAll) {
  EXPECT_EQ(before("actor hip:1", ":"), "actor hip");
  EXPECT_EQ(before("actor hip", ":"), "actor hip");
  EXPECT_EQ(before(":hip", ":"), "");
  EXPECT_EQ(after("a:b:c", ":"), "b:c");
  EXPECT_EQ(after("abc", ":"), "abc");
  EXPECT_EQ(after("abc:", ":"), "");
  EXPECT_EQ(withoutLast("C:\\Poser\\", 1), "C:\\Poser");
  EXPECT_EQ(withoutLast("C", 1), "");
  EXPECT_EQ(withoutLast("", 1), "");
}

TEST(Columns, TrimTakesBlanksAlone) {
  EXPECT_EQ(trimmed("  a b  "), "a b");
  EXPECT_EQ(trimmed("\t a "), "\t a");
  EXPECT_EQ(trimmed("   "), "");
}

TEST(Columns, CaseIsThatOfTheLatinLetters) {
  EXPECT_EQ(lowered("FOO.Cr2\xC4[@"), "foo.cr2\xC4[@");
  EXPECT_EQ(raised("foo.cR2\xE4{`"), "FOO.CR2\xE4{`");
  EXPECT_TRUE(equalIgnoringCase("Skin", "sKIN"));
  EXPECT_FALSE(equalIgnoringCase("Skin", "Skins"));
  EXPECT_FALSE(equalIgnoringCase("\xC4", "\xE4"));
  // Neighbours of the letters, 32 apart from others: not pairs.
  EXPECT_FALSE(equalIgnoringCase("[", "{"));
  EXPECT_FALSE(equalIgnoringCase("@", "`"));
}

TEST(Columns, AnExtensionIsThreeCharactersDotOrNot) {
  EXPECT_EQ(extension("C:\\a.CR2"), "CR2");
  EXPECT_EQ(extension("C:\\acr2"), "cr2");
  EXPECT_EQ(extension("C:\\a.h"), "a.h");
  EXPECT_EQ(extension("r2"), "r2");
}

TEST(Columns, ReplacesEachCharacter) {
  EXPECT_EQ(replaced("C:\\a\\b", '\\', ':'), "C::a:b");
  EXPECT_EQ(replaced("", '\\', ':'), "");
}

}  // namespace

}  // namespace norvik::text
