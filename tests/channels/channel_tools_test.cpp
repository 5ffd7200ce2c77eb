// What the channel views and the copy do to controls that no script can bring into the state in
// question, and lists that no caller leaves empty.

#include "channels/channel_views.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace norvik::tests {

namespace {

using Items = std::vector<std::string>;

constexpr const char* kMorph =
    "\t\ttargetGeom Smile\r\n\t\t\t{\r\n\t\t\tname Smile\r\n\t\t\tinterpStyleLocked 0\r\n"
    "\t\t\t}\r\n\t\ttwistY t\r\n";

std::string figure(const std::string& geometry, const std::string& channels) {
  const std::string reference = "figureResFile :Runtime:Geometries:" + geometry + "\r\n";
  const std::string storage = "\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n";
  return "{\r\n\tmaterial skin\r\n\ttextureMap NO_MAP\r\n" + reference + "actor head:1" + storage +
         reference + "actor head:1\r\n\t{\r\n\tname\tHead\r\n\tchannels\r\n\t\t{\r\n" + channels +
         "\t\t}\r\n\t}\r\n}\r\n";
}

class ChannelToolsTest : public testing::Test {
 protected:
  ChannelToolsTest() {
    drive_.makeFolder("Poser/Runtime/Geometries");
    drive_.write("dest.cr2", figure("doll.obj", kMorph));
    drive_.write("source.cr2", figure("old.obj", kMorph));
  }
  void open() {
    workbench_.run(
        "setting Startup PLoc C:\\Poser\\\nstart\nchoose C:\\dest.cr2\nclick MenuFileOpen\n");
  }
  void openSource() { workbench_.run("choose C:\\source.cr2\nclick LabelOpenSource\n"); }
  void viewHead() { workbench_.run("item ListActors head:1\nclick PictureViewChannels\n"); }
  front::Opening& opening() { return workbench_.opening(); }

  TemporaryFolder drive_;
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
  ScriptedWorkbench workbench_{*host_, drive_.path()};
};

TEST_F(ChannelToolsTest, AnEmptyListWithoutMorphsSaysSoInRed) {
  drive_.write("dest.cr2", figure("doll.obj", ""));
  open();
  opening().ListChannels.clear();
  channels::ViewChannels(workbench_.session(), "C:\\dest.cr2");
  EXPECT_EQ(opening().ListChannels.items(), Items{"NO CHANNELS IN CR2"});
  EXPECT_EQ(opening().ListChannels.fore(), front::kListWarning);
}

TEST_F(ChannelToolsTest, AnEmptyListWithMorphsStaysDarkBlue) {
  open();
  opening().ListChannels.clear();
  opening().ListChannels.setFore(front::kListWarning);
  channels::ViewChannels(workbench_.session(), "C:\\dest.cr2");
  EXPECT_EQ(opening().ListChannels.items(), (Items{"head:1", "\tSmile"}));
  EXPECT_EQ(opening().ListChannels.fore(), front::kListNormal);
}

TEST_F(ChannelToolsTest, AMissingFileEndsTheCallAndNotQuietly) {
  open();
  opening().LabelFileNameForEditor.setCaption("C:\\gone.cr2");
  EXPECT_THROW(channels::ViewChannels(workbench_.session(), "C:\\dest.cr2"), text::FileError);
}

/// Eight digits do not fit into single precision as text: the actor's line, 12345678, less 1.
TEST_F(ChannelToolsTest, LongFilesHaveRoundedLineNumbers) {
  constexpr std::size_t kEmptyLines = 12345677;
  std::string text;
  text.reserve(2 * kEmptyLines + 300);
  for (std::size_t i = 0; i < kEmptyLines; ++i) text += "\r\n";
  drive_.write("long.cr2", text + "actor head:1\r\n" + kMorph);
  open();
  opening().LabelFileNameForEditor.setCaption("C:\\long.cr2");
  channels::ViewChannels(workbench_.session(), "C:\\long.cr2");
  EXPECT_EQ(opening().ListChannelsReorder.items(), Items{"head:1*Smile^ 1.234568E+07@Smile"});
}

TEST_F(ChannelToolsTest, TheViewOfAPartPutsOtherToolsAway) {
  open();
  opening().OptionChannelRename.show();
  opening().OptionBodyPartRename.show();
  opening().PictureTrash.activate();
  opening().PictureJoints.activate();
  viewHead();
  EXPECT_FALSE(opening().OptionChannelRename.visible());
  EXPECT_FALSE(opening().OptionBodyPartRename.visible());
  EXPECT_FALSE(opening().PictureTrash.active());
  EXPECT_FALSE(opening().PictureJoints.active());
  EXPECT_TRUE(opening().PictureViewChannels.active());
}

TEST_F(ChannelToolsTest, TheRefusalOfTheBodyLeavesOtherToolsAlone) {
  open();
  opening().ListActors.add("BODY:1 * 7");
  opening().OptionChannelRename.show();
  opening().PictureJoints.activate();
  workbench_.run("item ListActors BODY:1\nclick PictureViewChannels\n");
  EXPECT_TRUE(opening().OptionChannelRename.visible());
  EXPECT_TRUE(opening().PictureJoints.active());
  EXPECT_FALSE(opening().PictureViewChannels.active());
}

TEST_F(ChannelToolsTest, TheWayBackPutsTheToolsOfThePartToRest) {
  open();
  viewHead();
  for (front::PictureButton* tool : {&opening().PictureCopyToDest, &opening().PictureRenameMorph,
                                     &opening().PictureChangeRatio}) {
    EXPECT_TRUE(tool->visible());
    tool->activate();
  }
  workbench_.run("click PictureViewChannels\n");
  for (const front::PictureButton* tool :
       {&opening().PictureCopyToDest, &opening().PictureRenameMorph,
        &opening().PictureChangeRatio}) {
    EXPECT_FALSE(tool->visible());
    EXPECT_FALSE(tool->active());
  }
}

TEST_F(ChannelToolsTest, ACopyPutsTheRenameOptionsAway) {
  open();
  openSource();
  viewHead();
  opening().OptionChannelRename.show();
  opening().OptionBodyPartRename.show();
  workbench_.run("select ListChannels 0\nclick PictureCopyToDest\n");
  EXPECT_TRUE(opening().OptionChannelRename.visible()) << "refused before it began";
  workbench_.run("select ListChannels\nclick PictureCopyToDest\n");
  EXPECT_FALSE(opening().OptionChannelRename.visible());
  EXPECT_FALSE(opening().OptionBodyPartRename.visible());
}

TEST_F(ChannelToolsTest, ARefusedGeometryClearsTheHiddenListOfLinks) {
  open();
  openSource();
  viewHead();
  opening().ListEMCs.add("left over");
  opening().ListEMCs.show();
  workbench_.run("item ListChannels Smile\nanswer Cancel\nclick PictureCopyToDest\n");
  EXPECT_EQ(opening().ListEMCs.count(), 0);
  EXPECT_FALSE(opening().ListEMCs.visible());
  EXPECT_FALSE(opening().PictureCopyToDest.active());
}

TEST_F(ChannelToolsTest, ANoKeepsTheHiddenListOfLinks) {
  open();
  openSource();
  viewHead();
  opening().ListEMCs.add("left over");
  workbench_.run("item ListChannels Smile\nanswer OK\nanswer No\nclick PictureCopyToDest\n");
  EXPECT_EQ(opening().ListEMCs.count(), 1);
  EXPECT_EQ(opening().pointer(), front::Pointer::arrow);
}

}  // namespace

}  // namespace norvik::tests
