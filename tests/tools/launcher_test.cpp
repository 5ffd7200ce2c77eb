// What a drop on the launcher changes in the main form.

#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"
#include "text/host.h"
#include "tools/form_launch.h"

#include <gtest/gtest.h>

namespace norvik::tools {
namespace {

class LauncherTest : public testing::Test {
 protected:
  LauncherTest() {
    folder_.write("a.obj", "v 0 0 0\r\n");
    folder_.write("b.pz2", "{\r\n}\r\n");
    folder_.write("short.cr2", "{\r\n}\r\n");
    bench_.run("setting Startup PLoc C:\\\nstart\nclick MenuLauncher\n");
    bench_.opening().OpenedPath = "opened";
    bench_.opening().DestPath = "receives";
  }
  void drop(const std::string& file) {
    bench_.run("drop-file C:\\" + file + " FormLaunch.Picture1\n");
  }

  tests::TemporaryFolder folder_;
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
  tests::ScriptedWorkbench bench_{*host_, folder_.path()};
};

TEST_F(LauncherTest, TheDroppedFileIsTheToolsInput) {
  drop("a.obj");
  EXPECT_EQ(bench_.opening().OpenedPath, "C:\\a.obj");
  EXPECT_EQ(bench_.opening().DestPath, "receives");
}

TEST_F(LauncherTest, SoIsOneThatStopsTheOpen) {
  drop("short.cr2");
  EXPECT_NE(bench_.takeEvents().find("\"number\":62"), std::string::npos);
  EXPECT_EQ(bench_.opening().OpenedPath, "C:\\short.cr2");
  EXPECT_EQ(bench_.opening().DestPath, "receives");
}

TEST_F(LauncherTest, AFileOfAnotherKindIsNot) {
  drop("b.pz2");
  EXPECT_EQ(bench_.opening().OpenedPath, "opened");
  EXPECT_EQ(bench_.opening().DestPath, "receives");
}

TEST_F(LauncherTest, PendingPathChangesStay) {
  bench_.opening().PathsEdited = true;
  drop("a.obj");
  EXPECT_TRUE(bench_.opening().PathsEdited);
}

TEST_F(LauncherTest, AFileThatIsNoPictureIsNamedSo) {
  bench_.run("click FormLaunch.Check1\n");
  drop("a.obj");
  const auto* form = bench_.session().findForm("FormLaunch");
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(dynamic_cast<const FormLaunch&>(*form).printed, "Invalid File Format!");
  bench_.run("close FormLaunch\nclick MenuLauncher\n");
  EXPECT_EQ(dynamic_cast<const FormLaunch&>(*form).printed, "");
}

}  // namespace
}  // namespace norvik::tools
