// The weight of a link that a chain gets.

#include "builders/transfer/new_weight.h"

#include "front/form.h"

#include <gtest/gtest.h>

namespace norvik::builders {
namespace {

class NewWeightTest : public testing::Test {
 protected:
  void list(std::initializer_list<std::string_view> items) {
    weights.clear();
    for (const std::string_view item : items) weights.add(item);
  }

  front::Form form{"Form", "Form"};
  front::ListBox weights{form, "weights"};
};

TEST_F(NewWeightTest, IsATwentiethOfTheLastOne) {
  EXPECT_EQ(weightBehind("\t\tlinkWeight 1 0.4").line, "\t\tlinkWeight 2 .02");
  EXPECT_EQ(weightBehind("\t\tlinkWeight 1 0.4").text, " 2 .02");
}

TEST_F(NewWeightTest, ByRatioIsTheLastOneByTheFirstTwo) {
  list({"LINKWEIGHTS", " 0 1", " 1 .5"});
  EXPECT_DOUBLE_EQ(weightByRatio(weights, "\t\tlinkWeight 1 .5"), 0.25);
}

TEST_F(NewWeightTest, ByRatioDoesNotStepOverTheNewLinksPlace) {
  list({"LINKWEIGHTS", " 0 1", "Your Link", " 1 .5"});
  EXPECT_DOUBLE_EQ(weightByRatio(weights, "\t\tlinkWeight 1 .5"), 0);
}

TEST_F(NewWeightTest, ByRatioOfNothingIsNothing) {
  EXPECT_DOUBLE_EQ(weightByRatio(weights, ""), 0);
  list({"LINKWEIGHTS", " 0 0", " 1 0"});
  EXPECT_DOUBLE_EQ(weightByRatio(weights, "\t\tlinkWeight 1 0"), 0);
}

}  // namespace
}  // namespace norvik::builders
