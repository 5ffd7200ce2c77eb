// The command line of norvik.

#include "desktop/options.h"

#include "support/understood.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace norvik::desktop {
namespace {

bool understood(const std::vector<std::string>& arguments) {
  return tests::understood(parseOptions, arguments);
}

TEST(WindowOptions, AreTakenInBothForms) {
  const Options options = parseOptions(
      {"--program=C:\\Norvik 2", "--settings", "my norvik.ini", "--drive", "D=/", "a figure.cr2"});
  EXPECT_EQ(options.program, "C:\\Norvik 2");
  EXPECT_EQ(options.settings, "my norvik.ini");
  EXPECT_EQ(options.drives, (std::vector<workbench::Drive>{{'D', "/"}}));
  EXPECT_EQ(options.file, "a figure.cr2");
}

TEST(WindowOptions, ADriveKeepsItsLinks) {
  namespace fs = std::filesystem;
  const fs::path folder = fs::temp_directory_path() / "norvik-window-options";
  fs::remove_all(folder);
  fs::create_directories(folder / "real");
  fs::create_directory_symlink(folder / "real", folder / "link");
  const std::string link = (folder / "link").string();
  const Options options =
      parseOptions({"--drive", "C=" + (folder / "real" / ".." / "link").string()});
  ASSERT_EQ(options.drives.size(), 1U);
  EXPECT_EQ(options.drives[0].second, link);
  fs::remove_all(folder);
}

TEST(WindowOptions, AreRefusedWhenTheyMakeNoSense) {
  EXPECT_FALSE(understood({"--nonsense"}));
  EXPECT_FALSE(understood({"-x"}));
  EXPECT_FALSE(understood({"--drive"}));
  EXPECT_FALSE(understood({"--drive", "C=/no such folder"}));
  EXPECT_FALSE(understood({"one.cr2", "two.cr2"}));
  EXPECT_TRUE(understood({}));
}

}  // namespace
}  // namespace norvik::desktop
