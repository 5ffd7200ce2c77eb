// The colour of the material that a text box names.

#include "materials/material_colour.h"
#include "support/error_number.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace norvik::tests {

namespace {

std::string figure(const std::string& colour) {
  const std::string reference = "figureResFile :Runtime:Geometries:doll:doll.obj\r\n";
  return "{\r\n" + reference + "actor BODY:1\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n" +
         reference +
         "actor BODY:1\r\n\t{\r\n\tname Body\r\n\t}\r\nfigure\r\n\t{\r\n\tmaterial "
         "skin\r\n\t\t{\r\n"
         "\t\tKdColor " +
         colour +
         "\r\n\t\tKaColor 0 0 0 1\r\n\t\tKsColor 0 0 0 1\r\n\t\ttextureMap NO_MAP\r\n\t\t}\r\n"
         "\t}\r\n}\r\n";
}

class ColourFromBoxTest : public testing::Test {
 protected:
  ColourFromBoxTest() {
    drive_.write("a.cr2", figure("1 1 1 1"));
    drive_.makeFolder("Norvik");
    drive_.makeFolder("Poser/Runtime/Geometries/doll");
    workbench_.run(
        "setting Startup PLoc C:\\Poser\\\nstart\nchoose C:\\a.cr2\nclick MenuFileOpen\n");
    workbench_.takeEvents();
    box().setBack(graphics::colourOf(128, 0, 255));
  }

  front::TextBox& box() { return workbench_.opening().TextMorphRename; }
  std::string events(const std::string& answers, const std::string& material) {
    workbench_.run(answers);
    box().setText(material);
    materials::setColourFromBox(workbench_.session(), box());
    return workbench_.takeEvents();
  }

  TemporaryFolder drive_;
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
  ScriptedWorkbench workbench_{*host_, drive_.path()};
};

const std::string kAsked =
    R"({"event":"box","title":"Confirm","text":"Set color to this color for skin?","style":1,"answer":)";
const std::string kSave =
    R"({"event":"dialog","kind":"save","name":"CommonDialog3","title":"Save the figure with the new colour","folder":"C:\\Poser\\Runtime\\Geometries\\doll","file":"C:\\a.cr2","result":)";

TEST_F(ColourFromBoxTest, WritesTheBoxesBackground) {
  EXPECT_EQ(
      events("answer OK\nchoose C:\\a.cr2\n", "skin"),
      kAsked + "\"OK\"}\n" + kSave + "\"C:\\\\a.cr2\"}\n" +
          R"({"event":"box","title":"Note!","text":"skin will now show up in Poser as the color you have chosen!","style":0,"answer":"OK"})" +
          "\n");
  EXPECT_EQ(drive_.read("a.cr2"), figure(" .5  0  .99609375 1"));
  EXPECT_EQ(workbench_.opening().ListMATColors.item(0), "128 0 255");
}

TEST_F(ColourFromBoxTest, EndsOnACancelOfTheQuestion) {
  EXPECT_EQ(events("answer Cancel\n", "skin"), kAsked + "\"Cancel\"}\n");
  EXPECT_EQ(drive_.read("a.cr2"), figure("1 1 1 1"));
}

TEST_F(ColourFromBoxTest, KeepsTheResultOnACancelOfTheSave) {
  EXPECT_EQ(events("answer OK\ncancel\n", "skin"), kAsked + "\"OK\"}\n" + kSave + "null}\n");
  EXPECT_EQ(drive_.read("a.cr2"), figure("1 1 1 1"));
  EXPECT_EQ(drive_.read("Norvik/color.txt"), figure(" .5  0  .99609375 1"));
}

TEST_F(ColourFromBoxTest, SaysThatTheMaterialIsMissing) {
  drive_.write("Norvik/color.txt", "an older result");
  EXPECT_EQ(
      events("answer OK\n", "skins"),
      R"({"event":"box","title":"Confirm","text":"Set color to this color for skins?","style":1,"answer":"OK"})"
      "\n"
      R"({"event":"box","title":"Error!","text":"No material called skins!  Perhaps mispelled?  Or plural?","style":0,"answer":"OK"})"
      "\n");
  EXPECT_EQ(drive_.read("a.cr2"), figure("1 1 1 1"));
  EXPECT_FALSE(drive_.exists("Norvik/color.txt"));
}

}  // namespace

}  // namespace norvik::tests
