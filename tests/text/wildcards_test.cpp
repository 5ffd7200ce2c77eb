#include "text/wildcards.h"

#include <gtest/gtest.h>

#include <string>

namespace norvik::text {

namespace {

TEST(Wildcards, NamesFitWithoutRegardToCase) {
  EXPECT_TRUE(matchesWildcards("Figure.CR2", "figure.cr2"));
  EXPECT_FALSE(matchesWildcards("Figure.CR2", "figure.cr"));
  EXPECT_FALSE(matchesWildcards("Figure.CR", "figure.cr2"));
  EXPECT_TRUE(matchesWildcards("", ""));
}

TEST(Wildcards, AStarTakesAnyCharacters) {
  EXPECT_TRUE(matchesWildcards("a.cr2", "*.cr2"));
  EXPECT_TRUE(matchesWildcards("A.B.Cr2", "*.cr2"));
  EXPECT_TRUE(matchesWildcards(".cr2", "*.cr2"));
  EXPECT_FALSE(matchesWildcards("a.cr2x", "*.cr2"));
  EXPECT_TRUE(matchesWildcards("anything", "*"));
  EXPECT_TRUE(matchesWildcards("", "*"));
  EXPECT_TRUE(matchesWildcards("xaxbxabx", "*a*b*x"));
  EXPECT_FALSE(matchesWildcards("xaxbxabx", "*a*b*y"));
  EXPECT_TRUE(matchesWildcards("ab", "a**b"));
}

TEST(Wildcards, AQuestionMarkTakesOne) {
  EXPECT_TRUE(matchesWildcards("a.pz2", "?.p?2"));
  EXPECT_FALSE(matchesWildcards("ab.pz2", "?.p?2"));
  EXPECT_FALSE(matchesWildcards(".pz2", "?.p?2"));
  EXPECT_TRUE(matchesWildcards("aab", "*?b"));
  EXPECT_FALSE(matchesWildcards("b", "*?b"));
  EXPECT_TRUE(matchesWildcards("ä.pz2", "?.PZ2")) << "a letter of two bytes";
  EXPECT_TRUE(matchesWildcards("Ä.pz2", "ä*"));
}

TEST(Wildcards, StarDotStarTakesNamesWithoutADot) {
  EXPECT_TRUE(matchesWildcards("readme", "*.*"));
  EXPECT_FALSE(matchesWildcards("readme", "*.*m"));
}

TEST(Wildcards, ManyStarsTakeNoLongTime) {
  std::string pattern;
  for (int i = 0; i < 100; ++i) pattern += "a*";
  EXPECT_FALSE(matchesWildcards(std::string(2000, 'a'), pattern + "b"));
}

}  // namespace

}  // namespace norvik::text
