#include "figure/check_sgi.h"

#include "support/error_number.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace norvik::figure {

namespace {

using Names = std::vector<std::string>;

class CheckSGITest : public testing::Test {
 protected:
  /// Checks a file, the operator answering OK. The number of the error that it ends with.
  int check(std::string path) {
    bench_.run("answer OK\n");
    return tests::errorNumber([&] { CheckSGI(bench_.session(), path); });
  }

  tests::TemporaryFolder folder_;
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
  tests::ScriptedWorkbench bench_{*host_, folder_.path()};
};

TEST_F(CheckSGITest, AConventionalFileIsLeftAlone) {
  folder_.write("foo.cr2", "a\r\nb\nc\rd");
  EXPECT_EQ(check("C:\\foo.cr2"), 0);
  EXPECT_EQ(bench_.takeEvents(), "");
  EXPECT_EQ(folder_.read("foo.cr2"), "a\r\nb\nc\rd");
  EXPECT_EQ(folder_.files(), Names{"foo.cr2"});
}

TEST_F(CheckSGITest, ConvertsAndKeepsABackup) {
  folder_.write("foo.cr2", "a\nb\n");
  EXPECT_EQ(check("C:\\foo.cr2"), 0);
  EXPECT_EQ(
      bench_.takeEvents(),
      R"({"event":"beep"})"
      "\n"
      R"({"event":"box","title":"Sorry!","text":"Norvik may not be able to process this file, )"
      R"(due to its unconventional construction.  Click OK to backup and continue, or Cancel.",)"
      R"("style":1,"answer":"OK"})"
      "\n"
      R"({"event":"box","title":"Note!","text":"Unconventional line ending! Please wait while it )"
      R"(is fixed -- you will only need to do this once, and it will not affect the file for )"
      R"(Poser.","style":0,"answer":"OK"})"
      "\n"
      R"({"event":"box","title":"Success!","text":"C:\\foo.cr2 converted, original saved as )"
      R"(C:\\fooCR2.bak  Norvik will now continue.","style":0,"answer":"OK"})"
      "\n");
  EXPECT_EQ(folder_.read("foo.cr2"), "a\r\nb\r\n");
  EXPECT_EQ(folder_.read("fooCR2.bak"), "a\nb\n");
  EXPECT_EQ(folder_.files(), (Names{"foo.cr2", "fooCR2.bak"}));
  EXPECT_FALSE(bench_.opening().OpenCancelled);
}

TEST_F(CheckSGITest, ARefusalChangesNothing) {
  folder_.write("foo.cr2", "a\nb\n");
  bench_.run("answer Cancel\n");
  std::string path = "C:\\foo.cr2";
  CheckSGI(bench_.session(), path);
  EXPECT_TRUE(bench_.opening().OpenCancelled);
  EXPECT_EQ(folder_.read("foo.cr2"), "a\nb\n");
  EXPECT_EQ(folder_.files(), Names{"foo.cr2"});
}

TEST_F(CheckSGITest, LooksAtTwoHundredBytes) {
  // The LF is the last byte that is looked at, then the first that is not.
  folder_.write("in.cr2", std::string(198, 'x') + "\r\ny\r\n");
  folder_.write("out.cr2", std::string(199, 'x') + "\r\ny\r\n");
  EXPECT_EQ(check("C:\\in.cr2"), 0);
  EXPECT_EQ(bench_.takeEvents(), "");
  EXPECT_EQ(check("C:\\out.cr2"), 0);
  EXPECT_NE(bench_.takeEvents().find("Success!"), std::string::npos);
  EXPECT_EQ(folder_.read("out.cr2"), std::string(199, 'x') + "\r\ny\r\n");
  EXPECT_EQ(folder_.files(), (Names{"in.cr2", "out.cr2", "outCR2.bak"}));
}

TEST_F(CheckSGITest, ADotInAFoldersNameShortensTheNames) {
  folder_.write("my.files/foo.cr2", "a\rb\r");
  EXPECT_EQ(check("C:\\my.files\\foo.cr2"), 0);
  EXPECT_EQ(folder_.read("my.files/foo.cr2"), "a\r\nb\r\n");
  EXPECT_EQ(folder_.read("myCR2.bak"), "a\rb\r");
  EXPECT_EQ(folder_.files(), (Names{"my.files/foo.cr2", "myCR2.bak"}));
}

TEST_F(CheckSGITest, APathWithoutADotIsTakenWhole) {
  folder_.write("figure", "a\n");
  EXPECT_EQ(check("C:\\figure"), 0);
  EXPECT_EQ(folder_.read("figure"), "a\r\n");
  EXPECT_EQ(folder_.read("figureURE.bak"), "a\n");
  EXPECT_EQ(folder_.files(), (Names{"figure", "figureURE.bak"}));
}

TEST_F(CheckSGITest, AnEmptyPathIsThatOfThePane) {
  folder_.write("foo.cr2", "a\n");
  bench_.opening().LabelFileName.setCaption("C:\\foo.cr2");
  bench_.run("answer OK\n");
  std::string path;
  CheckSGI(bench_.session(), path);
  EXPECT_EQ(path, "C:\\foo.cr2");
  EXPECT_EQ(folder_.read("foo.cr2"), "a\r\n");
  bench_.opening().LabelFileName.setCaption("");
  EXPECT_EQ(check(""), 75);
}

TEST_F(CheckSGITest, AnEmptyFileStaysEmpty) {
  folder_.write("foo.cr2", "");
  EXPECT_EQ(check("C:\\foo.cr2"), 0);
  const std::string events = bench_.takeEvents();
  EXPECT_NE(events.find("Sorry!"), std::string::npos);
  EXPECT_NE(events.find("Note!"), std::string::npos);
  EXPECT_EQ(folder_.read("foo.cr2"), "");
  EXPECT_EQ(folder_.read("fooCR2.bak"), "");
}

TEST_F(CheckSGITest, TextWithoutALineEndIsInTheBackupAlone) {
  folder_.write("foo.cr2", "a\nb");
  EXPECT_EQ(check("C:\\foo.cr2"), 0);
  EXPECT_EQ(folder_.read("foo.cr2"), "a\r\n");
  EXPECT_EQ(folder_.read("fooCR2.bak"), "a\nb");
}

TEST_F(CheckSGITest, EarlierScratchAndBackupFilesGo) {
  folder_.write("foo.cr2", "a\n");
  folder_.write("foo.new", "an earlier one, and longer");
  folder_.write("fooCR2.bak", "earlier");
  EXPECT_EQ(check("C:\\foo.cr2"), 0);
  EXPECT_EQ(folder_.read("foo.cr2"), "a\r\n");
  EXPECT_EQ(folder_.read("fooCR2.bak"), "a\n");
  EXPECT_EQ(folder_.files(), (Names{"foo.cr2", "fooCR2.bak"}));
}

TEST_F(CheckSGITest, ABackupThatCannotGoLeavesTheFileInSilence) {
  folder_.write("foo.cr2", "a\n");
  folder_.write("fooCR2.bak", "precious");
  folder_.setMode("fooCR2.bak", 0444);
  EXPECT_EQ(check("C:\\foo.cr2"), 0);
  EXPECT_NE(bench_.takeEvents().find("Success!"), std::string::npos);
  EXPECT_EQ(folder_.read("foo.cr2"), "a\n");
  EXPECT_EQ(folder_.read("fooCR2.bak"), "precious");
  EXPECT_EQ(folder_.read("foo.new"), "a\r\n");
}

TEST_F(CheckSGITest, AScratchNameThatIsTakenByAFolderStopsIt) {
  folder_.write("my.new/foo.cr2", "a\n");
  EXPECT_EQ(check("C:\\my.new\\foo.cr2"), 75);
  EXPECT_EQ(folder_.read("my.new/foo.cr2"), "a\n");
  EXPECT_EQ(folder_.files(), Names{"my.new/foo.cr2"});
}

TEST_F(CheckSGITest, TheNewFileHasTheOldOnesModeButMayBeWritten) {
  folder_.write("foo.cr2", "a\n");
  folder_.setMode("foo.cr2", 0440);
  EXPECT_EQ(check("C:\\foo.cr2"), 0);
  EXPECT_EQ(folder_.mode("foo.cr2"), 0640U);
  EXPECT_EQ(folder_.mode("fooCR2.bak"), 0440U);
}

TEST_F(CheckSGITest, ALinkStaysOne) {
  folder_.write("real/foo.cr2", "a\n");
  folder_.makeLink("foo.cr2", "real/foo.cr2");
  EXPECT_EQ(check("C:\\foo.cr2"), 0);
  EXPECT_EQ(folder_.read("real/foo.cr2"), "a\r\n");
  EXPECT_EQ(folder_.read("fooCR2.bak"), "a\n");
  std::string target;
  EXPECT_EQ(host_->readLink(folder_.path("foo.cr2"), target), 0);
}

TEST_F(CheckSGITest, WhatIsNoFileIsAnError) {
  folder_.makeFolder("folder.cr2");
  EXPECT_EQ(check("C:\\missing.cr2"), 53);
  EXPECT_EQ(check("C:\\missing\\foo.cr2"), 76);
  EXPECT_EQ(check("C:\\folder.cr2"), 75);
  EXPECT_EQ(check("\\\\server\\share\\foo.cr2"), 76);
  EXPECT_EQ(bench_.takeEvents(), "");
}

TEST_F(CheckSGITest, BinaryFilesConvertWithoutHarmToTheOriginal) {
  std::string bytes;
  for (int i = 0; i < 5000; ++i) bytes += static_cast<char>(i * 7 % 256);
  // Without a CR LF at its front.
  folder_.write("foo.cr2", bytes);
  EXPECT_EQ(check("C:\\foo.cr2"), 0);
  EXPECT_TRUE(folder_.read("fooCR2.bak") == bytes);
}

}  // namespace

}  // namespace norvik::figure
