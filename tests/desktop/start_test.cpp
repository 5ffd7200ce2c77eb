// What a new user meets first.

#include "desktop/program_bench.h"

namespace norvik::desktop {

namespace {

using StartTest = ProgramBench;

TEST_F(StartTest, TheSampleIsThereWithoutAQuestion) {
  start(kTilda + "tilda.cr2");
  EXPECT_TRUE(asker_.boxes.empty());
  EXPECT_TRUE(asker_.files.empty());
  EXPECT_EQ(opening().LabelFileNameForEditor.caption(), kTilda + "tilda.cr2");
  for (const char* const name : {"ListActors", "ListMaterials", "ListChannels", "TextMainOBJ"}) {
    EXPECT_TRUE(find<QWidget>(name).isVisible()) << name;
  }
  EXPECT_GT(opening().ListActors.count(), 10);
  EXPECT_EQ(opening().LabelOBJFileName.caption(),
            "C:\\Poser\\Runtime\\Geometries\\Tilda\\tilda.obj");
}

TEST_F(StartTest, AHostPathIsTakenAsWell) {
  start(folder_.path() + "/Poser/Runtime/Libraries/Characters/Tilda/tilda.cr2");
  EXPECT_TRUE(asker_.boxes.empty());
  EXPECT_EQ(opening().DestPath, kTilda + "tilda.cr2");
}

TEST_F(StartTest, AFileThatIsNotThereIsNamed) {
  start("C:\\Poser\\gone.cr2");
  ASSERT_EQ(asker_.boxes.size(), 1U);
  EXPECT_EQ(asker_.boxes[0].text, "Run-time error '53': File not found");
  EXPECT_EQ(asker_.boxes[0].note, "While reading C:\\Poser\\gone.cr2");
}

TEST_F(StartTest, AMissingPoseIsNamedToo) {
  start("C:\\Poser\\gone.pz2");
  ASSERT_EQ(asker_.boxes.size(), 1U);
  EXPECT_EQ(asker_.boxes[0].text, "There is no file C:\\Poser\\gone.pz2");
}

TEST_F(StartTest, APropIsOpenedAsAClickInTheRecentFilesDoesIt) {
  std::filesystem::copy_file(folder_.path() + "/Poser/Runtime/Libraries/Characters/Tilda/tilda.cr2",
                             folder_.path() + "/a.pz2");
  start("C:\\a.pz2");
  EXPECT_TRUE(asker_.boxes.empty());
  EXPECT_EQ(opening().LabelFileNameForEditor.caption(), "C:\\a.pz2");
  EXPECT_EQ(opening().DestPath, "C:\\a.pz2");
  ASSERT_EQ(opening().ListMRU.count(), 1);
  EXPECT_EQ(opening().ListMRU.item(0), "C:\\a.pz2");
}

class FirstStart : public ProgramBench {
 protected:
  FirstStart() : ProgramBench("") {}
};

TEST_F(FirstStart, TheDialogSaysWhatItIsForAndThatCancelIsFine) {
  start("");
  ASSERT_EQ(asker_.files.size(), 1U);
  EXPECT_EQ(asker_.files[0].title, "Where is Poser.exe?");
  EXPECT_TRUE(asker_.files[0].hint.contains("Cancel is fine"));
  EXPECT_TRUE(asker_.boxes.empty());
}

}  // namespace

}  // namespace norvik::desktop
