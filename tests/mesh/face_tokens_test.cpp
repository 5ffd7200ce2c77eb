#include "mesh/face_tokens.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace norvik::obj {
namespace {

using Indexes = std::vector<std::size_t>;

Indexes indexesOf(std::string_view line) {
  Indexes indexes{99};  // of the face before
  readFaceTokens(line, indexes);
  return indexes;
}

TEST(FaceTokens, AreTheFirstNumbersOfTheirTriples) {
  EXPECT_EQ(indexesOf("f 1 2 3"), (Indexes{1, 2, 3}));
  EXPECT_EQ(indexesOf("f 1/2/3 4/5/6 7/8/9"), (Indexes{1, 4, 7}));
  EXPECT_EQ(indexesOf("f 1//3 4//6 7//9"), (Indexes{1, 4, 7}));
  EXPECT_EQ(indexesOf("f 10/1 20/2 30/3 40/4 50/5"), (Indexes{10, 20, 30, 40, 50}));
}

TEST(FaceTokens, InFrontOfALaterSlashAreStillTheirLeadingNumber) {
  // The first token runs to the slash of the second one: "1 2".
  EXPECT_EQ(indexesOf("f 1 2/5 3"), (Indexes{1, 2, 3}));
  EXPECT_EQ(indexesOf("f 1/5 2 3"), (Indexes{1, 2, 3}));
}

TEST(FaceTokens, ThatCountFromTheEndStandForNoVertex) {
  EXPECT_EQ(indexesOf("f -1 -2 -3"), (Indexes{0, 0, 0}));
  EXPECT_EQ(indexesOf("f -1/1 2/2 3/3"), (Indexes{0, 2, 3}));
  // A lone minus is nothing plus 1.
  EXPECT_EQ(indexesOf("f - 2 3"), (Indexes{1, 2, 3}));
}

TEST(FaceTokens, LeaveAnEmptyPlaceForADoubledBlank) {
  EXPECT_EQ(indexesOf("f 1  2 3"), (Indexes{1, 0, 2, 3}));
  EXPECT_EQ(indexesOf("f  1 2 3"), (Indexes{0, 1, 2, 3}));
}

TEST(FaceTokens, TakeABlankInFrontOfATripleForATokenOfItsOwn) {
  EXPECT_EQ(indexesOf("f 1/1  2/2 3/3"), (Indexes{1, 2, 2, 3}));
}

TEST(FaceTokens, EndWithTheLastOne) {
  EXPECT_EQ(indexesOf("f 1 2 3 "), (Indexes{1, 2, 3}));
  EXPECT_EQ(indexesOf("f 1/1 2/2 3/3  "), (Indexes{1, 2, 3}));
  EXPECT_EQ(indexesOf("f "), (Indexes{}));
  EXPECT_EQ(indexesOf("f    "), (Indexes{}));
  EXPECT_EQ(indexesOf("f 5"), (Indexes{5}));
}

TEST(FaceTokens, ThatAreNoNumbersAreNothing) {
  EXPECT_EQ(indexesOf("f a b/c 3"), (Indexes{0, 0, 3}));
  EXPECT_EQ(indexesOf("f nan inf 1e2"), (Indexes{0, 0, 100}));
  EXPECT_EQ(indexesOf("f 99999999999999999999 1e400 3"), (Indexes{0, 0, 3}));
}

TEST(FaceTokens, OfAFractionAreRoundedToTheEvenNumber) {
  EXPECT_EQ(indexesOf("f 1.4 1.5 2.5"), (Indexes{1, 2, 2}));
}

TEST(FaceTokens, EndWithTheRecord) {
  // "f " and 124 tokens of 4 characters are 498; the token behind them is cut after 2 digits.
  std::string line = "f ";
  for (int i = 0; i < 124; ++i) line += "111 ";
  line += "12345 6";
  const Indexes found = indexesOf(line);
  ASSERT_EQ(found.size(), 125U);
  EXPECT_EQ(found[123], 111U);
  EXPECT_EQ(found[124], 12U);
}

TEST(TurnedRound, HasTheCornersInTheOppositeOrder) {
  EXPECT_EQ(turnedRound("f 1/2/3 4//5 6"), "f 6 4//5 1/2/3");
  EXPECT_EQ(turnedRound("f\t1  2 3 "), "f 3 2 1");
  EXPECT_EQ(turnedRound("fo 1 2"), "fo 2 1");
  EXPECT_EQ(turnedRound("f "), "f");
}

}  // namespace
}  // namespace norvik::obj
