#include "figure/sections.h"

#include "support/drive.h"

#include <gtest/gtest.h>

namespace norvik::tests {

namespace {

TEST(Sections, BeginWithTheirLine) {
  EXPECT_EQ(figure::sectionOf("actor head:1"), "actor head:1");
  EXPECT_EQ(figure::sectionOf("prop hair \t"), "prop hair");
  EXPECT_EQ(figure::sectionOf("\tmaterial skin"), "material skin");
  EXPECT_EQ(figure::sectionOf("figure"), "figure");
  EXPECT_EQ(figure::sectionOf("g head"), "g head");
  for (const char* line :
       {"", "\tactor head:1", "figureResFile :a", "actorless", "\t\tname skin"}) {
    EXPECT_EQ(figure::sectionOf(line), "") << line;
  }
}

class MentionsTest : public testing::Test, public Drive {
 protected:
  std::vector<std::string> mentions(const std::string& before, const std::string& after) {
    folder.write("before", before);
    folder.write("after", after);
    const auto changes =
        text::compareFiles(*host, folder.path("before"), folder.path("after"), figure::sectionOf);
    std::vector<std::string> result;
    for (const auto& mention :
         figure::mentionsOfTheGone(*host, folder.path("before"), folder.path("after"), changes)) {
      result.push_back(mention.name + " " + std::to_string(mention.line) + ":" + mention.text);
    }
    return result;
  }
};

TEST_F(MentionsTest, NameWhatHasGone) {
  const std::string rest = "actor neck:1\n\t\tvalueOpDeltaAdd\n\t\tSmile\n\t\tSmileWide\n";
  EXPECT_EQ(mentions("actor head:1\n\t\ttargetGeom Smile\n\t\t{\n\t\t}\n" + rest,
                     "actor head:1\n" + rest),
            std::vector<std::string>{"Smile 3:\t\tSmile"});
  EXPECT_EQ(mentions("actor head:1\nx\nactor neck:1\n", "actor neck:1\n\tparent head:1\n"),
            std::vector<std::string>{"head:1 1:\tparent head:1"});
}

TEST_F(MentionsTest, WhatMovedHasNotGone) {
  EXPECT_EQ(mentions("\ttargetGeom A\nx\ny\nz\n", "x\ny\nz\n\ttargetGeom A\n"),
            std::vector<std::string>{});
}

}  // namespace

}  // namespace norvik::tests
