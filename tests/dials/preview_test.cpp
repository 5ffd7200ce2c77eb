// What the renamer would do to a file.

#include "dials/rename_pass.h"
#include "support/drive.h"

#include <gtest/gtest.h>

namespace norvik::dials {
namespace {

class PreviewTest : public testing::Test {
 protected:
  Preview preview(const std::string& text, Direction direction, std::size_t most = 10) {
    drive_.folder.write("a.cr2", text);
    return previewOf(drive_.disk, "C:\\a.cr2", direction, most);
  }
  tests::Drive drive_;
};

TEST_F(PreviewTest, NumbersTheLinesThatChange) {
  const Preview found = preview(
      "one\r\n\t\t\tname GetStringRes(1028,4)\r\nthree\n\t\ttextureMap GetStringRes(1029,53)\r"
      "\tname    GetStringRes(1024,2)",
      Direction::toFriendly);
  EXPECT_EQ(found.changes, 2U);
  ASSERT_EQ(found.first.size(), 2U);
  EXPECT_EQ(found.first[0].line, 2U);
  EXPECT_EQ(found.first[0].before, "\t\t\tname GetStringRes(1028,4)");
  EXPECT_EQ(found.first[0].after, "\t\t\tname Bend");
  EXPECT_EQ(found.first[1].line, 5U);
  EXPECT_EQ(found.first[1].after, "\tname    Head");
}

TEST_F(PreviewTest, CountsBeyondWhatItKeeps) {
  std::string text;
  for (int i = 0; i < 25; ++i) text += "\t\t\tname Bend\r\n";
  const Preview found = preview(text, Direction::toGetStringRes, 3);
  EXPECT_EQ(found.changes, 25U);
  EXPECT_EQ(found.first.size(), 3U);
  EXPECT_EQ(found.first[2].line, 3U);
}

TEST_F(PreviewTest, LeavesTheFileAlone) {
  const Preview found = preview("\t\t\tname Smile\r\n", Direction::toGetStringRes);
  EXPECT_EQ(found.changes, 0U);
  EXPECT_EQ(drive_.folder.read("a.cr2"), "\t\t\tname Smile\r\n");
}

TEST_F(PreviewTest, OfAnEmptyFileIsEmpty) {
  EXPECT_EQ(preview("", Direction::toFriendly).changes, 0U);
}

TEST_F(PreviewTest, OfAMissingFileIsAnError) {
  EXPECT_THROW(previewOf(drive_.disk, "C:\\gone.cr2", Direction::toFriendly, 1), text::FileError);
}

}  // namespace
}  // namespace norvik::dials
