// The save of a result that a tool has left for the operator to name.

#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace norvik::tests {
namespace {

class PendingResultTest : public testing::Test {
 protected:
  PendingResultTest() {
    folder_.write("Norvik/CR2.tmp", "the result\r\n");
    bench_.run("setting Startup PLoc C:\\Poser\\\nstart\n");
    bench_.opening().PendingTempSave = true;
    bench_.opening().PathsEdited = true;
  }

  TemporaryFolder folder_;
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
  ScriptedWorkbench bench_{*host_, folder_.path()};
};

TEST_F(PendingResultTest, IsStoredAndEndsTheEditedPaths) {
  bench_.run("choose C:\\new.cr2\nclick MenuFileSaveAs\n");
  EXPECT_EQ(folder_.read("new.cr2"), "the result\r\n");
  EXPECT_FALSE(folder_.exists("Norvik/CR2.tmp"));
  EXPECT_EQ(bench_.opening().DestPath, "C:\\new.cr2");
  EXPECT_FALSE(bench_.opening().PendingTempSave);
  EXPECT_FALSE(bench_.opening().PathsEdited);
}

TEST_F(PendingResultTest, StaysPendingAfterACancelThatEndsTheEditedPaths) {
  bench_.run("cancel\nclick MenuFileSaveAs\n");
  EXPECT_EQ(folder_.read("Norvik/CR2.tmp"), "the result\r\n");
  EXPECT_TRUE(bench_.opening().PendingTempSave);
  EXPECT_FALSE(bench_.opening().PathsEdited);
}

}  // namespace
}  // namespace norvik::tests
