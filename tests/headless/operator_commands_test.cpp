// What each command of a script delivers at a control.

#include "headless/pad_form.h"
#include "headless/script_bench.h"

#include <gtest/gtest.h>

namespace norvik::headless {
namespace {

class OperatorCommands : public ::testing::Test {
 protected:
  OperatorCommands() {
    bench.session().addForm(pad);
    for (const char* item : {"one", "two", "three"}) {
      pad.ListPad.add(item);
      pad.ListOne.add(item);
    }
    bench.play("load Pad\n");
  }

  /// The pad's log of a script that prints no event.
  Lines quietly(const std::string& script) {
    EXPECT_EQ(bench.play(script), Lines{});
    return pad.takeLog();
  }

  PadForm pad;
  ScriptBench bench;
};

TEST_F(OperatorCommands, AClickPressesReleasesAndClicks) {
  EXPECT_EQ(quietly("click Pad.PicturePad\n"),
            (Lines{"PicturePad press 0,0", "PicturePad release 0,0", "PicturePad click"}));
}

TEST_F(OperatorCommands, ARightClickIsNoClick) {
  EXPECT_EQ(quietly("right-click Pad.PicturePad\n"),
            (Lines{"PicturePad press 0,0 right", "PicturePad release 0,0 right"}));
}

TEST_F(OperatorCommands, ADoubleClickArrives) {
  EXPECT_EQ(quietly("double-click Pad.LabelPad\n"), (Lines{"LabelPad double"}));
}

TEST_F(OperatorCommands, TheMouseGoesToItsPlace) {
  EXPECT_EQ(quietly("press Pad.PicturePad 3 4\ndrag Pad.PicturePad -5 600\n"
                    "release Pad.PicturePad 7 8 right\nhover Pad.PicturePad\n"),
            (Lines{"PicturePad press 3,4", "PicturePad move -5,600", "PicturePad release 7,8 right",
                   "PicturePad move 0,0 free"}));
}

TEST_F(OperatorCommands, AnOptionTakesItsValueBeforeItsClickArrives) {
  bool seen = false;
  pad.OptionB.clicked.add([&] { seen = pad.OptionB.value(); });
  pad.OptionA.setValue(true);
  pad.OptionOutside.setValue(true);
  quietly("click Pad.OptionB\n");
  EXPECT_TRUE(seen);
  EXPECT_TRUE(pad.OptionB.value());
  EXPECT_FALSE(pad.OptionA.value());
  EXPECT_TRUE(pad.OptionOutside.value()) << "an option of another frame";
  quietly("click Pad.OptionB\n");
  EXPECT_TRUE(pad.OptionB.value()) << "a second click does not clear it";
}

TEST_F(OperatorCommands, ACheckBoxTurnsOverBeforeItsClickArrives) {
  Lines values;
  pad.CheckPad.clicked.add([&] { values.emplace_back(pad.CheckPad.value() ? "on" : "off"); });
  quietly("click Pad.CheckPad\nclick Pad.CheckPad\n");
  EXPECT_EQ(values, (Lines{"on", "off"}));
}

TEST_F(OperatorCommands, SelectingDeliversOneClickOfTheLastItem) {
  int clicked = 0;
  pad.ListPad.clicked.add([&] { clicked = pad.ListPad.index(); });
  EXPECT_EQ(quietly("select Pad.ListPad 2 0\n"), (Lines{"ListPad click"}));
  EXPECT_EQ(clicked, 0);
  EXPECT_EQ(pad.ListPad.selection(), (std::vector<int>{0, 2}));
}

TEST_F(OperatorCommands, ASingleSelectionListKeepsTheLastItem) {
  quietly("select Pad.ListOne 0 2\n");
  EXPECT_EQ(pad.ListOne.selection(), (std::vector<int>{2}));
  EXPECT_EQ(pad.ListOne.index(), 2);
}

TEST_F(OperatorCommands, SelectingNothingClearsWithoutAClick) {
  quietly("select Pad.ListPad 1\n");
  EXPECT_EQ(quietly("select Pad.ListPad\n"), Lines{});
  EXPECT_EQ(pad.ListPad.selection(), std::vector<int>{});
  EXPECT_EQ(pad.ListPad.index(), front::ListBox::kNone);
}

TEST_F(OperatorCommands, AnItemIsChosenAndDoubleClicked) {
  EXPECT_EQ(quietly("item Pad.ListOne two\ndouble-click-item Pad.ListOne thr\n"),
            (Lines{"ListOne click", "ListOne click", "ListOne double"}));
  EXPECT_EQ(pad.ListOne.chosen(), "three");
}

TEST_F(OperatorCommands, TicksArriveWithTheirState) {
  EXPECT_EQ(quietly("tick Pad.ListPad 1 on\ntick Pad.ListPad 1 off\n"),
            (Lines{"ListPad tick 1 on", "ListPad tick 1 off"}));
  EXPECT_EQ(pad.ListPad.selection(), std::vector<int>{}) << "a tick selects nothing";
  EXPECT_EQ(bench.play("tick Pad.ListPad 3 on\ntick Pad.ListPad 1 maybe\n"),
            (Lines{R"({"event":"refused","line":1,"why":"3 is not from 0 to 2"})",
                   R"({"event":"refused","line":2,"why":"'maybe' is neither on nor off"})"}));
}

TEST_F(OperatorCommands, ADropNeedsADrag) {
  EXPECT_EQ(quietly("drop Pad.ListPad Pad.PicturePad\n"), (Lines{"ListPad press 0,0"}));
  // The press itself may start the drag.
  pad.ListPad.pressed.add([this](front::Mouse) { pad.ListPad.setDragging(true); });
  EXPECT_EQ(quietly("drop Pad.ListPad Pad.PicturePad\n"),
            (Lines{"ListPad press 0,0", "PicturePad gets ListPad"}));
}

TEST_F(OperatorCommands, AFileOfTheDesktopMayHaveBlanksInItsName) {
  EXPECT_EQ(quietly("drop-file C:\\my figures\\a b.cr2 Pad.PicturePad\n"),
            (Lines{"PicturePad gets file C:\\my figures\\a b.cr2"}));
}

TEST_F(OperatorCommands, SeveralFilesOfTheDesktopAreOneDrop) {
  int drops = 0;
  pad.PicturePad.filesDropped.add([&](const std::vector<std::string>&) { ++drops; });
  EXPECT_EQ(quietly("drop-file C:\\a b.cr2|C:\\c.obj Pad.PicturePad\n"),
            (Lines{"PicturePad gets file C:\\a b.cr2", "PicturePad gets file C:\\c.obj"}));
  EXPECT_EQ(drops, 1);
}

TEST_F(OperatorCommands, AClickOnAListBeginsNoDrag) {
  EXPECT_EQ(quietly("click Pad.ListPad\n"), (Lines{"ListPad release 0,0", "ListPad click"}));
}

TEST_F(OperatorCommands, ShiftIsHeldDuringItsClickAlone) {
  Lines held;
  pad.ListOne.clicked.add([&] { held.emplace_back(pad.ListOne.shiftHeld() ? "shift" : "plain"); });
  quietly("shift-item Pad.ListOne two\nitem Pad.ListOne two\n");
  EXPECT_EQ(held, (Lines{"shift", "plain"}));
  EXPECT_EQ(pad.ListOne.chosen(), "two");
}

TEST_F(OperatorCommands, AFolderListGoesToFoldersThatAreThere) {
  bench.disk.makeFolders("C:\\figures\\old");
  EXPECT_EQ(quietly("type Pad.FoldersPad C:\\figures\\old\\\n"),
            (Lines{"walked to C:\\figures\\old"}));
  EXPECT_EQ(bench.play("type Pad.FoldersPad C:\\nowhere\ntype Pad.FoldersPad\n"),
            (Lines{R"({"event":"refused","line":1,"why":"no folder 'C:\\nowhere'"})",
                   R"({"event":"refused","line":2,"why":"no folder ''"})"}));
  EXPECT_EQ(pad.FoldersPad.path(), "C:\\figures\\old");
}

TEST_F(OperatorCommands, ADriveTakesItsFolderListToItsRoot) {
  bench.disk.makeFolders("C:\\figures");
  quietly("type Pad.FoldersPad C:\\figures\n");
  EXPECT_EQ(quietly("type Pad.DrivesPad c:\n"), (Lines{"picked C:", "walked to C:\\"}));
  EXPECT_EQ(bench.play("type Pad.DrivesPad Q:\n"),
            (Lines{R"({"event":"refused","line":1,"why":"no drive 'Q:'"})"}));
}

TEST_F(OperatorCommands, PropertiesArePutWithoutAnEvent) {
  pad.TextPad.hide();
  quietly("select Pad.ListPad 1\n");
  EXPECT_EQ(quietly("put Pad.LabelPad caption  two words\nput Pad.TextPad text x\n"
                    "put Pad.ListPad items a||b c|\nput Pad.FilesPad path C:\\figures\n"
                    "put Pad.ComboPad text\n"),
            Lines{});
  EXPECT_EQ(pad.LabelPad.caption(), " two words");
  EXPECT_EQ(pad.TextPad.text(), "x");
  EXPECT_EQ(pad.ListPad.items(), (std::vector<std::string>{"a", "", "b c", ""}));
  EXPECT_EQ(pad.ListPad.selection(), std::vector<int>{});
  EXPECT_EQ(pad.ListPad.index(), front::ListBox::kNone);
  EXPECT_EQ(pad.FilesPad.path(), "C:\\figures");
  quietly("put Pad.ListPad items\n");
  EXPECT_EQ(pad.ListPad.count(), 0);
  EXPECT_EQ(bench.play("put Pad.LabelPad text x\n"),
            (Lines{R"({"event":"refused","line":1,"why":"LabelPad has no property 'text'"})"}));
}

TEST_F(OperatorCommands, TheModeIsANumber) {
  quietly("mode 69\n");
  EXPECT_EQ(bench.opening().Mode, 69);
  EXPECT_EQ(bench.play("mode many\n"),
            (Lines{R"({"event":"refused","line":1,"why":"'many' is no whole number"})"}));
}

TEST_F(OperatorCommands, ARoutineIsCalledByItsName) {
  bench.session().callable["Beeper"] = [this] { bench.front.beep(); };
  EXPECT_EQ(bench.play("call Beeper\ncall Nobody\n"),
            (Lines{R"({"event":"beep"})",
                   R"({"event":"refused","line":2,"why":"no routine 'Nobody'"})"}));
}

TEST_F(OperatorCommands, AFormThatCannotLoadStaysUnloaded) {
  bench.play("close Pad\n");
  pad.loading.add([this] { bench.disk.remove("C:\\nobody.txt"); });
  const Lines events = bench.play("load Pad\n");
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0].find(R"({"event":"runtime-error","number":53)"), 0U);
  EXPECT_FALSE(pad.loaded());
}

TEST_F(OperatorCommands, WhatAFormSaysStandsBehindItsShowing) {
  bench.play("close Pad\n");
  pad.shown.add([this] { bench.front.beep(); });
  EXPECT_EQ(bench.play("load Pad\n"),
            (Lines{R"({"event":"form","form":"Pad","state":"shown"})", R"({"event":"beep"})"}));
}

TEST_F(OperatorCommands, TypingReplacesTheText) {
  pad.TextPad.setText("old");
  EXPECT_EQ(quietly("type Pad.TextPad  two words \ntype Pad.RichPad rich\ntype Pad.ComboPad x\n"
                    "type Pad.TextPad\n"),
            (Lines{"TextPad is  two words ", "RichPad is rich", "ComboPad is x", "TextPad is "}));
  EXPECT_EQ(pad.RichPad.caret(), 0U) << "as behind a paste by mouse";
}

TEST_F(OperatorCommands, TheCaretIsPlaced) {
  pad.TextPad.setText("figure");
  EXPECT_EQ(quietly("caret Pad.TextPad 2\ncaret Pad.TextPad 1 4\ncaret Pad.TextPad 6\n"),
            (Lines{"TextPad caret 2+0", "TextPad caret 1+4", "TextPad caret 6+0"}));
}

TEST_F(OperatorCommands, KeysGoToControlsAndForms) {
  EXPECT_EQ(quietly("key Pad.TextPad Enter\nkey Pad.TextPad Ctrl+F1\nkey Pad F3\nkey Pad x\n"),
            (Lines{"TextPad key Enter", "TextPad key Ctrl+F1", "form key F3", "form key x"}));
}

TEST_F(OperatorCommands, ASliderKeepsToItsLimits) {
  EXPECT_EQ(quietly("set Pad.SliderPad -5\nset Pad.SliderPad 5\n"),
            (Lines{"slid to -5", "slid to 5"}));
  EXPECT_EQ(bench.play("set Pad.SliderPad 6\n"),
            (Lines{R"({"event":"refused","line":1,"why":"6 is not from -5 to 5"})"}));
}

TEST_F(OperatorCommands, ATimerExpiresOnlyWhileItRuns) {
  EXPECT_EQ(quietly("timer Pad.TimerPad\n"), Lines{});
  pad.TimerPad.start();
  EXPECT_EQ(quietly("timer Pad.TimerPad\ntimer Pad.TimerPad\n"), (Lines{"expired", "expired"}));
}

TEST_F(OperatorCommands, AMenuEntryUnfoldsTheMenusAboveItFromTheTop) {
  EXPECT_EQ(quietly("click Pad.MenuLeaf\n"),
            (Lines{"MenuPad opened", "MenuInner opened", "MenuLeaf opened", "MenuLeaf click"}));
}

TEST_F(OperatorCommands, AnEntryOfADisabledOrHiddenMenuIsRefused) {
  pad.MenuInner.setEnabled(false);
  EXPECT_EQ(bench.play("click Pad.MenuLeaf\n"),
            (Lines{R"({"event":"refused","line":1,"why":"MenuLeaf is disabled"})"}));
  pad.MenuInner.setEnabled(true);
  pad.MenuPad.hide();
  const Lines events = bench.play("click Pad.MenuLeaf\n");
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0].find(R"({"event":"refused","line":1,)"), 0U);
  EXPECT_EQ(pad.takeLog(), Lines{});
}

TEST_F(OperatorCommands, WordsThatACommandDoesNotTakeAreRefused) {
  EXPECT_EQ(bench.play("frames 12 13\nanswer Yes please\ndrop-file Pad.LabelPad\n \t\n"),
            (Lines{R"({"event":"refused","line":1,"why":"more words than frames takes"})",
                   R"({"event":"refused","line":2,"why":"more words than answer takes"})",
                   R"({"event":"refused","line":3,"why":"no file"})"}));
  EXPECT_EQ(bench.front.frames(), 1);
  EXPECT_EQ(quietly("frames  12 \n"), Lines{});
  EXPECT_EQ(bench.front.frames(), 12);
}

TEST_F(OperatorCommands, KeysThatTheStoreCannotGiveBackAreRefused) {
  EXPECT_EQ(bench.play("setting A ;b c\nsetting A b=c d\nsetting A b ;c=d\n"),
            (Lines{R"({"event":"refused","line":1,"why":"';b' is no key"})",
                   R"({"event":"refused","line":2,"why":"'b=c' is no key"})"}));
  EXPECT_EQ(bench.session().settings.get("A", "b", ""), ";c=d");
}

TEST_F(OperatorCommands, FramesAreCountedFromOne) {
  EXPECT_EQ(bench.front.frames(), 1);
  quietly("frames 12\n");
  EXPECT_EQ(bench.front.frames(), 12);
}

TEST_F(OperatorCommands, FormsAreShownAndUnloaded) {
  EXPECT_EQ(bench.play("close Pad\nclick Pad.LabelPad\nclose Pad\nload Pad\nclick Pad.LabelPad\n"),
            (Lines{R"({"event":"form","form":"Pad","state":"unloaded"})",
                   R"({"event":"refused","line":2,"why":"the form Pad is not loaded"})",
                   R"({"event":"refused","line":3,"why":"the form Pad is not loaded"})",
                   R"({"event":"form","form":"Pad","state":"shown"})"}));
  EXPECT_EQ(pad.takeLog(),
            (Lines{"unloading", "LabelPad press 0,0", "LabelPad release 0,0", "LabelPad click"}));
}

TEST_F(OperatorCommands, AnErrorOfTheFileLayerEndsTheHandlerAlone) {
  pad.CommandPad.clicked.add([this] { bench.disk.remove("C:\\nobody.txt"); });
  EXPECT_EQ(
      bench.play("click Pad.CommandPad\necho still here\n"),
      (Lines{
          R"({"event":"runtime-error","number":53,"text":"File not found","path":"C:\\nobody.txt"})",
          R"({"event":"echo","text":"still here"})"}));
  EXPECT_EQ(bench.outcome.exitCode(), kDone);
}

}  // namespace
}  // namespace norvik::headless
