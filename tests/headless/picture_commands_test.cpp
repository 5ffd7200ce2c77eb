// What scripts do with drawing surfaces.

#include "headless/pad_form.h"
#include "headless/script_bench.h"

#include <gtest/gtest.h>

namespace norvik::headless {
namespace {

class PictureCommands : public ::testing::Test {
 protected:
  PictureCommands() {
    bench.session().addForm(pad);
    bench.play("load Pad\n");
  }

  std::string refusal(const std::string& command) {
    const Lines events = bench.play(command + "\n");
    const std::string head = R"({"event":"refused","line":1,"why":")";
    if (events.size() != 1 || events[0].find(head) != 0) return "not refused";
    return events[0].substr(head.size(), events[0].size() - head.size() - 2);
  }

  PadForm pad;
  ScriptBench bench;
};

TEST_F(PictureCommands, TheMouseIsDeliveredInPixels) {
  EXPECT_EQ(bench.play("press Pad.CanvasPad 3 2\ndrag Pad.CanvasPad -5 600\n"
                       "release Pad.CanvasPad 4 3\nhover Pad.CanvasPad\n"),
            Lines{});
  EXPECT_EQ(pad.takeLog(), (Lines{"CanvasPad press 3,2", "CanvasPad move -5,600",
                                  "CanvasPad release 4,3", "CanvasPad move 0,0 free"}));
}

TEST_F(PictureCommands, TheRightButtonIsDeliveredAsSuch) {
  EXPECT_EQ(bench.play("press Pad.CanvasPad 0 0 right\ndrag Pad.CanvasPad 1 2 right\n"
                       "release Pad.CanvasPad 2147483647 -2147483648 right\n"),
            Lines{});
  EXPECT_EQ(pad.takeLog(), (Lines{"CanvasPad press 0,0 right", "CanvasPad move 1,2 right",
                                  "CanvasPad release 2147483647,-2147483648 right"}));
}

TEST_F(PictureCommands, TheMouseNeedsAPlaceAndAPictureOnView) {
  EXPECT_EQ(refusal("press Pad.CanvasPad 3"), "'' is no whole number");
  EXPECT_EQ(refusal("drag Pad.CanvasPad 3 x"), "'x' is no whole number");
  EXPECT_EQ(refusal("press Pad.CanvasPad 99999999999 0"), "'99999999999' is no whole number");
  EXPECT_EQ(refusal("release Pad.CanvasPad 3 4 left"), "'left' is not right");
  pad.CanvasPad.setEnabled(false);
  EXPECT_EQ(refusal("press Pad.CanvasPad 1 1"), "CanvasPad is disabled");
  pad.CanvasPad.hide();
  EXPECT_EQ(refusal("release Pad.CanvasPad 1 1"), "CanvasPad is hidden");
  EXPECT_EQ(pad.takeLog(), Lines{});
}

TEST_F(PictureCommands, SizeAndCheckSumCanBeExpected) {
  EXPECT_EQ(bench.play("expect Pad.CanvasPad pixels 4|3\nexpect Pad.CanvasPad crc 429457753\n"),
            Lines{});
  EXPECT_EQ(bench.play("expect Pad.CanvasPad crc 1\n"),
            (Lines{R"({"event":"failed","line":1,"why":"Pad.CanvasPad crc is '429457753', )"
                   R"(not '1'"})"}));
}

// Rows from the bottom, blue first, four pixels to a row.
TEST_F(PictureCommands, APictureIsSavedOnTheHost) {
  pad.CanvasPad.surface().clear();
  pad.CanvasPad.surface().setPixel({1, 2}, graphics::colourOf(1, 2, 3));
  pad.CanvasPad.hide();
  EXPECT_EQ(bench.play("save-picture Pad.CanvasPad " + (bench.folder / "a picture.bmp") + "\n"),
            Lines{});
  const std::string file = bench.folder.read("a picture.bmp");
  ASSERT_EQ(file.size(), 54U + 36);
  EXPECT_EQ(file.substr(0, 2), "BM");
  EXPECT_EQ(file.substr(54), "\xFF\xFF\xFF\x03\x02\x01" + std::string(30, '\xFF'));
}

TEST_F(PictureCommands, ASavedPictureTakesTheOldOnesPlace) {
  bench.folder.write("old.bmp", std::string(1000, 'x'));
  bench.play("save-picture Pad.CanvasPad " + (bench.folder / "old.bmp") + "\n");
  EXPECT_EQ(bench.folder.read("old.bmp").size(), 54U + 36);
}

TEST_F(PictureCommands, OnlyADrawingSurfaceWithAFileIsSaved) {
  EXPECT_EQ(refusal("save-picture Pad.PicturePad " + (bench.folder / "x.bmp")),
            "PicturePad is no drawing surface");
  EXPECT_EQ(bench.folder.read("x.bmp"), "(missing)");
  EXPECT_EQ(refusal("save-picture Pad.CanvasPad"), "no file");
  EXPECT_EQ(refusal("save-picture Pad.Nobody x.bmp"), "no control 'Pad.Nobody'");
  const std::string nowhere = bench.folder / "nowhere/x.bmp";
  EXPECT_EQ(refusal("save-picture Pad.CanvasPad " + nowhere), "cannot write '" + nowhere + "'");
  const std::string folder = bench.folder.path();
  EXPECT_EQ(refusal("save-picture Pad.CanvasPad " + folder), "cannot write '" + folder + "'");
  bench.play("close Pad\n");
  EXPECT_EQ(refusal("save-picture Pad.CanvasPad " + (bench.folder / "x.bmp")),
            "the form Pad is not loaded");
}

}  // namespace
}  // namespace norvik::headless
