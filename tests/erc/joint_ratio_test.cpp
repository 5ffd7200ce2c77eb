#include "erc/joint_ratio.h"

#include "front/form.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

namespace norvik::erc {

namespace {

struct Limits : front::Form {
  Limits() : Form("Limits", "Limits") {}
  void add(const std::string& channel, const std::string& least, const std::string& most) {
    List.add(channel + "*\t\t\tmin " + least);
    List.add(channel + "*\t\t\tmax " + most);
  }
  front::ListBox List{*this, "List"};
};

TEST(JointRatioTest, IsTheQuotientOfTheRanges) {
  Limits limits;
  limits.add("xrot hip:1 ", "-45", "75");
  limits.add("xrot head:1 ", "-30", "30");
  EXPECT_EQ(ratioOfJoints(limits.List, "xrot hip", "xrot head:1 "), ".5");
  EXPECT_EQ(ratioOfJoints(limits.List, "xrot head", "xrot hip:1 "), "2");
}

TEST(JointRatioTest, HasNoSignColumnAndNoZeroInFrontOfThePoint) {
  Limits limits;
  limits.add("m", "-1", "2");
  limits.add("third", "0", "1");
  limits.add("tiny", "0", "0.000075");
  limits.add("turned", "1", "0.25");
  limits.add("huge", "0", "6e7");
  EXPECT_EQ(ratioOfJoints(limits.List, "m", "third"), ".3333333");
  EXPECT_EQ(ratioOfJoints(limits.List, "m", "tiny"), "2.5E-05");
  EXPECT_EQ(ratioOfJoints(limits.List, "m", "turned"), "-.25");
  EXPECT_EQ(ratioOfJoints(limits.List, "m", "huge"), "2E+07");
}

TEST(JointRatioTest, TakesAMastersZeroForOne) {
  Limits limits;
  limits.add("low", "0", "5");
  limits.add("high", "-5", "0");
  limits.add("slaved", "0", "12");
  EXPECT_EQ(ratioOfJoints(limits.List, "low", "slaved"), "3");
  EXPECT_EQ(ratioOfJoints(limits.List, "high", "slaved"), "2");
}

TEST(JointRatioTest, TakesTheFirstChannelThatHoldsTheText) {
  Limits limits;
  limits.add("xrot hipNub:1 ", "-2", "2");
  limits.add("xrot hip:1 ", "-45", "75");
  limits.add("s", "0", "12");
  EXPECT_EQ(ratioOfJoints(limits.List, "xrot hip", "s"), "3");
}

TEST(JointRatioTest, KnowsNothingOfAChannelThatIsNotThere) {
  Limits limits;
  limits.add("m", "-1", "1");
  EXPECT_EQ(ratioOfJoints(limits.List, "m", "nobody"), "0");
  constexpr int kDivisionByZero = 11;
  EXPECT_EQ(tests::errorNumber([&] { ratioOfJoints(limits.List, "nobody", "m"); }),
            kDivisionByZero);
}

TEST(JointRatioTest, CannotDivideByEqualLimits) {
  constexpr int kDivisionByZero = 11;
  for (const auto& [least, most] : {std::pair{"0", "1"}, {"1", "0"}, {"0", "0"}, {"7", "7"}}) {
    Limits limits;
    limits.add("m", least, most);
    EXPECT_EQ(tests::errorNumber([&] { ratioOfJoints(limits.List, "m", "m"); }), kDivisionByZero);
  }
}

}  // namespace

}  // namespace norvik::erc
