#include "text/rewrite_pass.h"

#include "support/drive.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

namespace norvik::text {

namespace {

using tests::errorNumber;

class RewritePassTest : public testing::Test, public tests::Drive {};

TEST_F(RewritePassTest, CopiesWithConventionalEnds) {
  folder.write("figure", "a\nb\r\n\rc");
  folder.write("scratch", "of an earlier run, and longer than the copy");
  RewritePass pass(disk, "C:\\figure", "C:\\scratch");
  pass.copyRest();
  pass.finish();
  EXPECT_EQ(folder.read("scratch"), "a\r\nb\r\n\r\nc\r\n");
  EXPECT_EQ(folder.read("figure"), "a\nb\r\n\rc");
}

TEST_F(RewritePassTest, CopiesUpToATokenAndFromTheMiddleOfALine) {
  folder.write("figure", "a\r\nb\r\nthe token, x\r\nc\r\n");
  RewritePass pass(disk, "C:\\figure", "C:\\scratch");
  pass.copyLines({anywhere("token")});
  EXPECT_EQ(pass.in().field(), "the token");
  pass.out().line("changed,");
  pass.copyRest();
  pass.finish();
  EXPECT_EQ(folder.read("scratch"), "a\r\nb\r\nchanged,\r\n x\r\nc\r\n");
}

TEST_F(RewritePassTest, AnEmptyFileGivesAnEmptyCopy) {
  folder.write("figure", "");
  RewritePass pass(disk, "C:\\figure", "C:\\scratch");
  pass.copyRest();
  pass.finish();
  EXPECT_EQ(folder.read("scratch"), "");
}

TEST_F(RewritePassTest, AMissingFigureLeavesAnEmptyScratchFile) {
  folder.write("scratch", "old");
  EXPECT_EQ(errorNumber([&] { RewritePass(disk, "C:\\figure", "C:\\scratch"); }), 53);
  EXPECT_EQ(folder.read("scratch"), "");
}

TEST_F(RewritePassTest, AReadOnlyScratchFileStopsThePass) {
  folder.write("figure", "a");
  folder.write("scratch", "old");
  disk.setReadOnly("C:\\scratch", true);
  EXPECT_EQ(errorNumber([&] { RewritePass(disk, "C:\\figure", "C:\\scratch"); }), 75);
  EXPECT_EQ(folder.read("scratch"), "old");
}

TEST_F(RewritePassTest, TheScratchFileHoldsWhatWasPrintedBeforeAnError) {
  folder.write("figure", "a\r\nb\r\n");
  EXPECT_EQ(errorNumber([&] {
              RewritePass pass(disk, "C:\\figure", "C:\\scratch");
              for (;;) pass.out().line(pass.in().line());
            }),
            62);
  EXPECT_EQ(folder.read("scratch"), "a\r\nb\r\n");
}

}  // namespace

}  // namespace norvik::text
