// What the creator of phi files remembers of a figure.

#include "builders/phi/phi_index.h"

#include <gtest/gtest.h>

namespace norvik::builders {
namespace {

TEST(PhiIndex, KnowsTheListedParts) {
  PhiIndex index;
  for (const char* field : {"actor lHand:1", "actor head:2", "actor neck:"}) {
    index.note(field, 0);
    EXPECT_TRUE(index.has(field)) << field;
  }
  EXPECT_FALSE(index.has("actor lHand:2"));
  EXPECT_FALSE(index.has("actor rHand:1"));
}

TEST(PhiIndex, KnowsNoOtherLines) {
  PhiIndex index;
  for (const char* field : {"actor hip:1", "actor BODY:1", "actor tail:1", "actor head", "head:1",
                            "actor head:12", "actor head:1 ", "prop head:1", "actor lhand:1"}) {
    index.note(field, 0);
    EXPECT_FALSE(index.has(field)) << field;
  }
}

TEST(PhiIndex, KnowsTheFirstChainAndWhatStandsBehindIt) {
  PhiIndex index;
  EXPECT_FALSE(index.chain());
  index.note("addChild inkyChain:1", 10);
  EXPECT_FALSE(index.chain());
  index.note("inkyChain LeftLeg", 20);
  index.note("inkyChain RightLeg", 30);
  ASSERT_TRUE(index.chain());
  EXPECT_EQ(index.chain()->field, "inkyChain LeftLeg");
  EXPECT_EQ(index.chain()->behind, 20U);
}

}  // namespace
}  // namespace norvik::builders
