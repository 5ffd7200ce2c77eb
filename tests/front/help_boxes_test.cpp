// What a right click on each picture says, also on those that a tool has to bring on view first.

#include "headless/script_bench.h"

#include <gtest/gtest.h>

namespace norvik::front {
namespace {

struct Help {
  const char* control;
  const char* title;
  const char* text;
};

constexpr Help kHelp[] = {
    {"LabelOpenSource", "Information", "Click this button to open a source file."},
    {"PictureCopyToDest", "Information",
     "Click this to copy a morph from the source to destination file."},
    {"PictureEditor", "Information", "Click this for the Manual Editor"},
    {"PictureEMC", "Information", "Click this to work with Enhanced Remote Control Morphs."},
    {"PictureChangeRatio", "Information",
     "Click this to change the control ratio for an ERC morph."},
    {"PictureInstallCR2", "Information", "Click this to install the files referred to in the CR2."},
    {"PictureCR2InstallCancel", "Information", "Click here to cancel installing the CR2."},
    {"PictureJoints", "Information", "Click this button to enable transfering joint parameters."},
    {"PictureMapViewer", "Info", "Click this to view a map."},
    {"PictureMash", "Information",
     "Click this button to condense the OBJ file by removing the VN lines, or a morph by removing "
     "all but the V lines.  Click this icon again when you have chosen."},
    {"PictureMirror", "Info",
     "Left click this to enable morph copying.  Choose a body part to show its morphs, then click "
     "the Channel Icon, then doubleclick the morph you want to copy."},
    {"PictureOBJExtract", "Information",
     "Click this to export the geometry embedded in this file, as a new OBJ file."},
    {"PictureOBJView", "Information",
     "Click this button to view the geometry of the model in the main OBJ file."},
    {"PicturePrintCR2Files", "Information", "Click this to print the list of files."},
    {"PictureRenameMorph", "Information", "Click this to rename a morph channel or body part."},
    {"PictureScaleObj", "Information", "Click this button to scale the OBJ."},
    {"PictureTrash", "Information", "Click this button and then drag things to it."},
    {"PictureViewChannels", "Information",
     "Click this button to view channels for a body part and enable re-naming and copying them."},
    {"PictureMatColor", "Note!",
     "Choose a material and doubleclick here to change the material color."},
    {"PictureMatHiLite", "Note!",
     "Choose a material and doubleclick here to change the material highlight color."},
};

class HelpBoxes : public ::testing::TestWithParam<Help> {};

TEST_P(HelpBoxes, ARightClickTellsWhatThePictureIsFor) {
  const Help help = GetParam();
  headless::ScriptBench bench;
  bench.start();
  Control* control = bench.opening().find(help.control);
  ASSERT_NE(control, nullptr);
  control->show();
  const Colour back = control->back();
  const std::string name = help.control;
  EXPECT_EQ(bench.play("right-click " + name + "\n"),
            (headless::Lines{std::string{R"({"event":"box","title":")"} + help.title +
                             R"(","text":")" + help.text + R"(","style":0,"answer":"OK"})"}));
  EXPECT_EQ(control->back(), back) << "it does not act";
  EXPECT_EQ(bench.outcome.exitCode(), headless::kDone);
}

INSTANTIATE_TEST_SUITE_P(EachPicture, HelpBoxes, ::testing::ValuesIn(kHelp),
                         [](const auto& help) { return std::string{help.param.control}; });

}  // namespace
}  // namespace norvik::front
