#include "mesh/colour_book.h"

#include "front/form_obj.h"
#include "mesh/name_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace norvik::obj {
namespace {

struct ColourBookTest : testing::Test {
  front::FormOBJ form;
  front::ListBox& list = form.ListGroupColors;
  std::mt19937 random{254};
};

TEST_F(ColourBookTest, FindsTheColourOfAWholeLine) {
  list.add("g hip*1 2 254");
  const ColourBook book(list);
  EXPECT_EQ(book.find("g hip"), front::colourOf(1, 2, 254));
  EXPECT_EQ(book.find("g Hip"), std::nullopt);
  EXPECT_EQ(book.find("hip"), std::nullopt);
  EXPECT_EQ(book.find("g hip "), std::nullopt);
}

TEST_F(ColourBookTest, TakesTheLastOfTwoEntries) {
  list.add("g hip*1 2 3");
  list.add("g hip*4 5 6");
  EXPECT_EQ(ColourBook(list).find("g hip"), front::colourOf(4, 5, 6));
}

TEST_F(ColourBookTest, ReadsEntriesThatATypistHasSpoiled) {
  list.add("g a*");
  list.add("g b*300 -1 x");
  list.add("g c*1  3");
  list.add("g d");
  const ColourBook book(list);
  EXPECT_EQ(book.find("g a"), front::colourOf(0, 0, 0));
  EXPECT_EQ(book.find("g b"), front::colourOf(255, 0, 0));
  EXPECT_EQ(book.find("g c"), front::colourOf(1, 0, 3));
  EXPECT_EQ(book.find("g d"), front::colourOf(0, 0, 0));
}

TEST_F(ColourBookTest, DrawsAColourOnceAndKeepsItsEntry) {
  ColourBook book(list);
  const front::Colour colour = book.findOrDraw("g hip", random);
  EXPECT_EQ(book.findOrDraw("g hip", random), colour);
  ASSERT_EQ(list.count(), 1);
  EXPECT_EQ(list.item(0), "g hip*" + std::to_string(graphics::redOf(colour)) + " " +
                              std::to_string(graphics::greenOf(colour)) + " " +
                              std::to_string(graphics::blueOf(colour)));
  // A reload finds it in the list.
  EXPECT_EQ(ColourBook(list).find("g hip"), colour);
}

TEST_F(ColourBookTest, NeverFindsALineThatHoldsAStar) {
  ColourBook book(list);
  book.findOrDraw("g a*b", random);
  book.findOrDraw("g a*b", random);
  EXPECT_EQ(list.count(), 2);
  // Its entries stand for what is in front of the star, and their colour begins behind it.
  EXPECT_TRUE(book.find("g a").has_value());
  EXPECT_EQ(graphics::redOf(*book.find("g a")), 0U);
}

TEST_F(ColourBookTest, DrawsFrom1To254AndNotTheSameTwice) {
  ColourBook book(list);
  std::set<front::Colour> seen;
  std::set<unsigned> parts;
  constexpr int kGroups = 3000;
  for (int i = 0; i < kGroups; ++i) {
    const front::Colour colour = book.findOrDraw("g " + std::to_string(i), random);
    seen.insert(colour);
    for (const unsigned part :
         {graphics::redOf(colour), graphics::greenOf(colour), graphics::blueOf(colour)}) {
      parts.insert(part);
    }
  }
  EXPECT_GT(seen.size(), 2900U);
  EXPECT_EQ(*parts.begin(), 1U);
  EXPECT_EQ(*parts.rbegin(), 254U);
}

TEST_F(ColourBookTest, DrawsTheSameColoursFromTheSameSeed) {
  front::FormOBJ other;
  std::mt19937 again(254);
  ColourBook book(list);
  ColourBook second(other.ListGroupColors);
  for (const char* line : {"g a", "g b", "g c"}) {
    book.findOrDraw(line, random);
    second.findOrDraw(line, again);
  }
  EXPECT_EQ(list.items(), other.ListGroupColors.items());
}

TEST_F(ColourBookTest, KeepsTheColoursOfAFewGroupsApart) {
  constexpr unsigned kSeeds = 200;
  constexpr int kGroups = 10;
  for (unsigned seed = 0; seed < kSeeds; ++seed) {
    list.clear();
    random.seed(seed);
    ColourBook book(list);
    std::vector<double> numbers;
    for (int i = 0; i < kGroups; ++i) {
      const double number = book.findOrDraw("g " + std::to_string(i), random);
      for (const double other : numbers) {
        const double apart = number > other ? number - other : other - number;
        EXPECT_GT(apart, 0.05 * std::max(number, other)) << seed;
      }
      numbers.push_back(number);
    }
  }
}

TEST_F(ColourBookTest, GivesThe3DViewItsShareOf255) {
  const graphics::Material diffuse = diffuseOf(front::colourOf(51, 102, 255));
  EXPECT_FLOAT_EQ(diffuse.red, 0.2F);
  EXPECT_FLOAT_EQ(diffuse.green, 0.4F);
  EXPECT_FLOAT_EQ(diffuse.blue, 1);
}

TEST(NameList, KeepsDistinctNamesInTheOrderOfTheirFirstUse) {
  front::FormOBJ form;
  form.ListGroups.add("hip");
  NameList names(form.ListGroups);
  for (const char* name : {"chest", "hip", "", "Hip", "chest", ""}) names.add(name);
  EXPECT_EQ(form.ListGroups.items(), (std::vector<std::string>{"hip", "chest", "", "Hip"}));
}

}  // namespace
}  // namespace norvik::obj
