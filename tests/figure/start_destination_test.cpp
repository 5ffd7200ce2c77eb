// A file that is given at the start is a destination like one that was opened.

#include "figure/open_file.h"
#include "support/error_number.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"
#include "text/host.h"

#include <gtest/gtest.h>

namespace norvik::figure {

namespace {

class StartDestination : public testing::Test {
 protected:
  StartDestination() { bench_.run("setting Startup PLoc C:\\\nstart\n"); }

  /// DestPath once a file of a name was given at the start.
  std::string destinationOf(std::string path) {
    bench_.opening().DestPath = "before";
    lastError_ = tests::errorNumber([&] { ComStart(bench_.session(), path); });
    return bench_.opening().DestPath;
  }

  tests::TemporaryFolder folder_;
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
  tests::ScriptedWorkbench bench_{*host_, folder_.path()};
  int lastError_ = 0;
};

TEST_F(StartDestination, IsSetForTheTypesThatTheStartHandles) {
  folder_.write("a.obj", "v 1 2 3\r\n");
  EXPECT_EQ(destinationOf("C:\\a.obj"), "C:\\a.obj");
  EXPECT_EQ(lastError_, 0);
}

TEST_F(StartDestination, IsSetBeforeTheFileIsLookedAt) {
  EXPECT_EQ(destinationOf("C:\\gone.cr2"), "C:\\gone.cr2");
  EXPECT_EQ(lastError_, 53);
  EXPECT_EQ(destinationOf("C:\\gone.PZ3"), "C:\\gone.PZ3");
  EXPECT_EQ(lastError_, 53);
}

TEST_F(StartDestination, StaysForOtherTypes) {
  for (const char* const path : {"C:\\a.pz2", "C:\\a.bmp", "C:\\a.hr2", "C:\\a.pp2", "C:\\a.fc2",
                                 "C:\\a.mtl", "C:\\a.txt", ""}) {
    EXPECT_EQ(destinationOf(path), "before") << path;
  }
}

}  // namespace
}  // namespace norvik::figure
