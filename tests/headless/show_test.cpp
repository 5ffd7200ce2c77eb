// The state of controls, as the runner prints it and compares it.

#include "headless/pad_form.h"
#include "headless/script_bench.h"

#include <gtest/gtest.h>

namespace norvik::headless {
namespace {

class ShowEvent : public ::testing::Test {
 protected:
  ShowEvent() {
    bench.session().addForm(pad);
    bench.play("load Pad\n");
    for (front::Control* control : pad.controls()) {
      control->setBox({1, 2.5F, 30, 4});
      control->setFore(0xC00000);
      control->setBack(255);
      control->setTip("a \"tip\"");
    }
  }

  std::string shown(const std::string& name) {
    const Lines events = bench.play("show Pad." + name + "\n");
    return events.size() == 1 ? events[0] : std::to_string(events.size()) + " events";
  }

  static std::string state(const std::string& name, const std::string& kind,
                           const std::string& own) {
    return R"({"event":"show","control":"Pad.)" + name + R"(","kind":")" + kind +
           R"(","visible":true,"enabled":true,"left":1,"top":2.5,"width":30,"height":4,)" +
           R"("fore":12582912,"back":255,"tip":"a \"tip\"")" + own + "}";
  }

  PadForm pad;
  ScriptBench bench;
};

TEST_F(ShowEvent, NumbersHaveNoExponent) {
  pad.LabelPad.setBox({-0.00001F, 0, 100000, 1e10F});
  const std::string event = shown("LabelPad");
  EXPECT_NE(event.find(R"("left":-0.00001,"top":0,"width":100000,"height":10000000000,)"),
            std::string::npos)
      << event;
}

TEST_F(ShowEvent, OfALabelHasItsCaption) {
  EXPECT_EQ(shown("LabelPad"), state("LabelPad", "label", R"(,"caption":"a label")"));
}

TEST_F(ShowEvent, OfAMenuEntryHasItsCaption) {
  EXPECT_EQ(shown("MenuLeaf"), state("MenuLeaf", "menu entry", R"(,"caption":"Leaf")"));
}

TEST_F(ShowEvent, OfAListHasItemsAndSelection) {
  EXPECT_EQ(shown("ListPad"), state("ListPad", "list box", R"(,"items":[],"selected":[])"));
  for (const char* item : {"one", "", "tab\there", "back\\slash", "\xE9\xFF"}) {
    pad.ListPad.add(item);
  }
  bench.play("select Pad.ListPad 4 1\n");
  EXPECT_EQ(shown("ListPad"),
            state("ListPad", "list box",
                  ",\"items\":[\"one\",\"\",\"tab\\there\",\"back\\\\slash\",\"\u00E9\u00FF\"],"
                  "\"selected\":[1,4]"));
}

TEST_F(ShowEvent, OfATextBoxHasItsText) {
  pad.TextPad.setText("two\r\nlines");
  pad.RichPad.setText("rich\r\n\ntext\n");
  pad.RichPad.setCaret(1, 2);
  pad.RichPad.setLineColours({graphics::colourOf(1, 2, 3)});
  pad.ComboPad.setText("combo");
  pad.ComboPad.add("a");
  pad.ComboPad.add("b");
  EXPECT_EQ(shown("TextPad"),
            state("TextPad", "text box", R"(,"text":"two\r\nlines","start":0,"length":0)"));
  EXPECT_EQ(shown("RichPad"), state("RichPad", "rich text box",
                                    R"(,"text":"rich\r\n\ntext\n","start":1,"length":2,)"
                                    R"("colours":[[1,2,3],[0,0,192],[0,0,192]])"));
  EXPECT_EQ(shown("ComboPad"), state("ComboPad", "combo box",
                                     R"(,"text":"combo","start":0,"length":0,"items":["a","b"])"));
}

TEST_F(ShowEvent, OfAChoiceHasItsValue) {
  pad.OptionA.setValue(true);
  pad.SliderPad.setValue(-3);
  EXPECT_NE(shown("OptionA").find(R"("value":true})"), std::string::npos);
  EXPECT_NE(shown("OptionB").find(R"("value":false})"), std::string::npos);
  EXPECT_NE(shown("CheckPad").find(R"("value":false})"), std::string::npos);
  EXPECT_EQ(shown("SliderPad"), state("SliderPad", "slider", R"(,"value":-3)"));
}

TEST_F(ShowEvent, OfATimerHasIntervalAndWhetherItRuns) {
  EXPECT_EQ(shown("TimerPad"), state("TimerPad", "timer", R"(,"interval":250,"running":false)"));
  pad.TimerPad.start();
  EXPECT_EQ(shown("TimerPad"), state("TimerPad", "timer", R"(,"interval":250,"running":true)"));
}

TEST_F(ShowEvent, OfAPictureHasTheCommonState) {
  pad.PicturePad.hide();
  pad.PicturePad.setEnabled(false);
  EXPECT_NE(shown("PicturePad").find(R"("kind":"picture button","visible":false,"enabled":false,)"),
            std::string::npos);
}

// The check sums are those of 36 bytes of 255, and of the same with the second row's third pixel as
// 12, 34, 56.
TEST_F(ShowEvent, OfADrawingSurfaceHasItsSizeAndCheckSum) {
  EXPECT_EQ(shown("CanvasPad"),
            state("CanvasPad", "drawing surface", R"(,"pixels":[4,3],"crc":429457753)"));
  pad.CanvasPad.surface().setPixel({2, 1}, graphics::colourOf(12, 34, 56));
  EXPECT_EQ(shown("CanvasPad"),
            state("CanvasPad", "drawing surface", R"(,"pixels":[4,3],"crc":4181973498)"));
  pad.CanvasPad.surface().resize(0, 3);
  EXPECT_EQ(shown("CanvasPad"),
            state("CanvasPad", "drawing surface", R"(,"pixels":[0,3],"crc":0)"));
}

TEST_F(ShowEvent, OfAFormItselfTellsWhetherItIsLoaded) {
  EXPECT_EQ(
      bench.play("show Pad\nclose Pad\nshow Pad\n"),
      (Lines{R"({"event":"show","control":"Pad","kind":"form","visible":true,"caption":"Pad"})",
             R"({"event":"form","form":"Pad","state":"unloaded"})",
             R"({"event":"show","control":"Pad","kind":"form","visible":false,"caption":"Pad"})"}));
}

TEST_F(ShowEvent, OfAListWithCheckMarksHasTheTickedItems) {
  for (const char* item : {"one", "two", "three"}) pad.ListTicks.add(item);
  bench.play("tick Pad.ListTicks 0 on\ntick Pad.ListTicks 2 on\nselect Pad.ListTicks 1\n");
  EXPECT_EQ(shown("ListTicks"),
            state("ListTicks", "list box", R"(,"items":["one","two","three"],"selected":[0,2])"));
}

TEST_F(ShowEvent, OfFileListsHasTheirPaths) {
  pad.FoldersPad.setPath("C:\\");
  pad.DrivesPad.setPath("C:");
  pad.FilesPad.setPath("C:\\figures");
  EXPECT_EQ(shown("FoldersPad"), state("FoldersPad", "folder list", R"(,"path":"C:\\")"));
  EXPECT_EQ(shown("DrivesPad"), state("DrivesPad", "drive list", R"(,"path":"C:")"));
  EXPECT_EQ(shown("FilesPad"),
            state("FilesPad", "file list",
                  R"(,"items":[],"selected":[],"path":"C:\\figures","pattern":"*.cr2")"));
}

TEST_F(ShowEvent, OfAFormComesInTheOrderOfItsDeclaration) {
  const Lines names{"LabelPad",   "ListPad",   "ListOne",    "TextPad",   "RichPad",
                    "ComboPad",   "FramePad",  "OptionA",    "OptionB",   "OptionOutside",
                    "CheckPad",   "SliderPad", "PicturePad", "CanvasPad", "CommandPad",
                    "FoldersPad", "DrivesPad", "FilesPad",   "ListTicks", "TimerPad",
                    "MenuPad",    "MenuInner", "MenuLeaf"};
  const Lines events = bench.play("show-form Pad\n");
  ASSERT_EQ(events.size(), names.size());
  for (std::size_t i = 0; i < names.size(); ++i) {
    EXPECT_EQ(events[i].find(R"({"event":"show","control":"Pad.)" + names[i] + R"(",)"), 0U)
        << events[i];
  }
}

TEST_F(ShowEvent, OnTheMainFormNeedsNoFormName) {
  bench.start();
  const Lines events = bench.play("show TimerPushpin\n");
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0].find(R"({"event":"show","control":"TimerPushpin","kind":"timer",)"), 0U);
}

TEST_F(ShowEvent, TextsOfPropertiesCanBeExpected) {
  pad.ListPad.add("one");
  pad.ListPad.add(" two ");
  pad.LabelPad.setCaption("  blanks");
  EXPECT_EQ(bench.play("expect Pad.ListPad items one| two \nexpect Pad.LabelPad caption   blanks\n"
                       "expect Pad.LabelPad top 2.5\nexpect Pad.LabelPad width 30\n"
                       "expect Pad.LabelPad tip a \"tip\"\nexpect Pad.CheckPad value false\n"
                       "expect Pad.LabelPad enabled true\nexpect Pad.TimerPad interval 250\n"),
            Lines{});
  EXPECT_EQ(bench.outcome.exitCode(), kDone);
}

}  // namespace
}  // namespace norvik::headless
