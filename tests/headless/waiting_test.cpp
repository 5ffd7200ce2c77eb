// Handlers that wait: modal forms and tools that poll take the commands that follow.

#include "headless/pad_form.h"
#include "headless/script_bench.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace norvik::headless {
namespace {

/// A second form, shown modally by the pad's button.
struct AskForm : front::Form {
  AskForm() : Form("Ask", "Ask") {}
  front::Label LabelAsk{*this, "LabelAsk"};
  front::CommandButton CommandClose{*this, "CommandClose", "Close"};
};

const char* const kModal = R"({"event":"form","form":"Ask","state":"modal"})";
const char* const kGone = R"({"event":"form","form":"Ask","state":"unloaded"})";

class WaitingHandlers : public ::testing::Test {
 protected:
  WaitingHandlers() {
    bench.session().addForm(pad);
    bench.session().addForm(ask);
    bench.play("load Pad\n");
    pad.log.clear();
    pad.CommandPad.clicked.add([this] {
      bench.front.showModal(ask, [] {});
      bench.front.messageBox("the handler goes on", "Pad", front::kOk);
    });
    ask.LabelAsk.clicked.add([this] { bench.front.beep(); });
    ask.CommandClose.clicked.add([this] { bench.session().unload(ask); });
  }

  static std::string box(const std::string& text) {
    return R"({"event":"box","title":"Pad","text":")" + text + R"(","style":0,"answer":"OK"})";
  }
  static std::string echo(const std::string& text) {
    return R"({"event":"echo","text":")" + text + "\"}";
  }
  static std::string refused(int line, const std::string& why) {
    return R"({"event":"refused","line":)" + std::to_string(line) + R"(,"why":")" + why + "\"}";
  }

  PadForm pad;
  AskForm ask;
  ScriptBench bench;
};

TEST_F(WaitingHandlers, AModalFormTakesTheCommandsThatFollow) {
  EXPECT_EQ(bench.play("click Pad.CommandPad\nclick Ask.LabelAsk\nclick Pad.LabelPad\n"
                       "echo inside\nclose Ask\necho outside\nclick Pad.LabelPad\n"),
            (Lines{kModal, R"({"event":"beep"})", refused(3, "the form Ask waits"), echo("inside"),
                   kGone, box("the handler goes on"), echo("outside")}));
  EXPECT_EQ(pad.takeLog(),
            (Lines{"CommandPad press 0,0", "CommandPad release 0,0", "CommandPad click",
                   "LabelPad press 0,0", "LabelPad release 0,0", "LabelPad click"}));
}

TEST_F(WaitingHandlers, AModalFormCanUnloadItself) {
  EXPECT_EQ(
      bench.play("click Pad.CommandPad\nclick Ask.CommandClose\nclick Ask.LabelAsk\n"),
      (Lines{kModal, kGone, box("the handler goes on"), refused(3, "the form Ask is not loaded")}));
}

TEST_F(WaitingHandlers, TheEndOfTheScriptUnloadsAModalForm) {
  EXPECT_EQ(bench.play("click Pad.CommandPad\necho the last line\n"),
            (Lines{kModal, echo("the last line"), kGone, box("the handler goes on")}));
  EXPECT_EQ(bench.outcome.exitCode(), kDone);
  EXPECT_FALSE(ask.loaded());
}

TEST_F(WaitingHandlers, ModalFormsNest) {
  // A modal form that shows another one: the inner one has to go first.
  struct InnerForm : front::Form {
    InnerForm() : Form("Inner", "Inner") {}
    front::Label LabelInner{*this, "LabelInner"};
  } inner;
  bench.session().addForm(inner);
  ask.LabelAsk.doubleClicked.add([&] { bench.front.showModal(inner, [] {}); });
  EXPECT_EQ(bench.play("click Pad.CommandPad\ndouble-click Ask.LabelAsk\nclick Ask.LabelAsk\n"
                       "close Inner\nclick Ask.LabelAsk\nclose Ask\n"),
            (Lines{kModal, R"({"event":"form","form":"Inner","state":"modal"})",
                   refused(3, "the form Inner waits"),
                   R"({"event":"form","form":"Inner","state":"unloaded"})", R"({"event":"beep"})",
                   kGone, box("the handler goes on")}));
}

TEST_F(WaitingHandlers, AnErrorInsideDoesNotEndTheHandlerThatWaits) {
  ask.LabelAsk.doubleClicked.add([this] { bench.disk.remove("C:\\nobody.txt"); });
  EXPECT_EQ(
      bench.play("click Pad.CommandPad\ndouble-click Ask.LabelAsk\nclose Ask\n"),
      (Lines{
          kModal,
          R"({"event":"runtime-error","number":53,"text":"File not found","path":"C:\\nobody.txt"})",
          kGone, box("the handler goes on")}));
}

TEST_F(WaitingHandlers, TheExitEndsTheRunAlsoInsideAModalForm) {
  bench.start();
  const Lines events = bench.play("click Pad.CommandPad\nexit\necho too late\n");
  EXPECT_TRUE(bench.front.ended());
  EXPECT_FALSE(ask.loaded());
  EXPECT_EQ(std::count(events.begin(), events.end(), R"({"event":"end"})"), 1);
  EXPECT_EQ(std::count(events.begin(), events.end(), echo("too late")), 0);
}

TEST_F(WaitingHandlers, AToolThatPollsTakesTheNextCommands) {
  bool done = false;
  pad.LabelPad.clicked.add([&] { done = true; });
  pad.PicturePad.clicked.add([&] {
    while (!done) bench.front.waitForOperator();
    bench.front.messageBox("done waiting", "Pad", front::kOk);
  });
  EXPECT_EQ(bench.play("click Pad.PicturePad\necho one\nclick Pad.LabelPad\necho two\n"),
            (Lines{echo("one"), box("done waiting"), echo("two")}));
}

TEST_F(WaitingHandlers, TheEndOfTheScriptStopsAToolThatPolls) {
  int steps = 0;
  pad.PicturePad.clicked.add([&] {
    while (steps < 3) {
      bench.front.waitForOperator();
      ++steps;
    }
    bench.front.messageBox("done waiting", "Pad", front::kOk);
  });
  EXPECT_EQ(bench.play("click Pad.PicturePad\necho one\necho two\n"),
            (Lines{echo("one"), echo("two")}));
  EXPECT_EQ(steps, 2);
  EXPECT_EQ(bench.outcome.exitCode(), kDone) << "that is no missing answer";
}

TEST_F(WaitingHandlers, TheExitStopsAToolThatPolls) {
  bench.start();
  int steps = 0;
  pad.PicturePad.clicked.add([&] {
    for (;; ++steps) bench.front.waitForOperator();
  });
  bench.play("click Pad.PicturePad\nexit\necho too late\n");
  EXPECT_TRUE(bench.front.ended());
  EXPECT_EQ(steps, 1) << "the exit itself, and nothing behind it";
}

}  // namespace
}  // namespace norvik::headless
