#include "figure/space_chopper.h"

#include "support/error_number.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace norvik::figure {

namespace {

using Names = std::vector<std::string>;

class SpaceChopperTest : public testing::Test {
 protected:
  int chop(const std::string& path) {
    return tests::errorNumber([&] { SpaceChopper(bench_.session(), path); });
  }

  tests::TemporaryFolder folder_;
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
  tests::ScriptedWorkbench bench_{*host_, folder_.path()};
};

TEST_F(SpaceChopperTest, TakesOneBlankFromEachLineThatHasOne) {
  folder_.write("foo.cr2", " actor hip\r\n\t{\r\n  name x\r\n \r\n\r\n\t }\r\nend\r\n");
  EXPECT_EQ(chop("C:\\foo.cr2"), 0);
  EXPECT_EQ(folder_.read("foo.cr2"), "actor hip\r\n\t{\r\n name x\r\n\r\n\r\n\t }\r\nend\r\n");
  EXPECT_EQ(folder_.files(), Names{"foo.cr2"});
}

TEST_F(SpaceChopperTest, EndsAllLinesConventionally) {
  folder_.write("foo.cr2", " a\nb\r c\r\n\n d");
  EXPECT_EQ(chop("C:\\foo.cr2"), 0);
  EXPECT_EQ(folder_.read("foo.cr2"), "a\r\nb\r\nc\r\n\r\nd\r\n");
}

TEST_F(SpaceChopperTest, ABlankThatIsAllOfAnUnfinishedLastLineLeavesAnEmptyLine) {
  folder_.write("foo.cr2", " a\r\n ");
  EXPECT_EQ(chop("C:\\foo.cr2"), 0);
  EXPECT_EQ(folder_.read("foo.cr2"), "a\r\n\r\n");
  folder_.write("foo.cr2", "a\r ");
  EXPECT_EQ(chop("C:\\foo.cr2"), 0);
  EXPECT_EQ(folder_.read("foo.cr2"), "a\r\n\r\n");
}

TEST_F(SpaceChopperTest, WorksInTheCurrentFolder) {
  folder_.write("figures/foo.cr2", " a\r\n");
  folder_.write("work/chop.DOC", "of an earlier run");
  folder_.setMode("figures/foo.cr2", 0600);
  bench_.run("start\nchdir C:\\work\n");
  EXPECT_EQ(chop("C:\\figures\\foo.cr2"), 0);
  EXPECT_EQ(folder_.read("figures/foo.cr2"), "a\r\n");
  EXPECT_EQ(folder_.mode("figures/foo.cr2"), 0600U);
  EXPECT_EQ(folder_.files(), Names{"figures/foo.cr2"});
}

TEST_F(SpaceChopperTest, AReadOnlyFileIs75AndTheScratchFileStays) {
  folder_.write("foo.cr2", " a\r\n");
  folder_.setMode("foo.cr2", 0444);
  EXPECT_EQ(chop("C:\\foo.cr2"), 75);
  EXPECT_EQ(folder_.read("foo.cr2"), " a\r\n");
  EXPECT_EQ(folder_.read("Chop.doc"), "a\r\n");
}

TEST_F(SpaceChopperTest, AMissingFileIs53) {
  EXPECT_EQ(chop("C:\\foo.cr2"), 53);
}

}  // namespace

}  // namespace norvik::figure
