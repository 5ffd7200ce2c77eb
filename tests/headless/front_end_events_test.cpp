// The events of operations that no tool of the main form uses alone, and the answers they take.

#include "headless/script_bench.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace norvik::headless {
namespace {

class FrontEndEvents : public ::testing::Test {
 protected:
  /// Whether an operation ends its tool because nobody answers.
  bool stops(const std::function<void()>& operation) {
    try {
      operation();
    } catch (const front::ToolStopped&) {
      return true;
    }
    return false;
  }

  ScriptBench bench;
};

TEST_F(FrontEndEvents, AColourIsChosen) {
  bench.play("colour 1 2 255\n");
  EXPECT_EQ(bench.front.colourDialog(0), std::optional<front::Colour>{0xFF0201});
  EXPECT_EQ(bench.takeEvents(), (Lines{R"({"event":"colour","result":[1,2,255]})"}));
}

TEST_F(FrontEndEvents, AColourDialogIsCancelled) {
  bench.play("cancel\ncolour 1 2 3\n");
  EXPECT_EQ(bench.front.colourDialog(0), std::nullopt);
  EXPECT_EQ(bench.takeEvents(), (Lines{R"({"event":"colour","result":null})"}));
  EXPECT_EQ(bench.outcome.exitCode(), kDone);
}

TEST_F(FrontEndEvents, AColourDialogWithoutAnAnswerStopsItsTool) {
  bench.play("choose C:\\a.bmp\naccept\nanswer Yes\n");
  EXPECT_TRUE(stops([this] { bench.front.colourDialog(0); }));
  EXPECT_EQ(bench.takeEvents(), (Lines{R"({"event":"colour","result":null})"}));
  EXPECT_EQ(bench.outcome.exitCode(), kUnanswered);
}

TEST_F(FrontEndEvents, ThePrinterIsAcceptedOrCancelled) {
  bench.play("accept\ncancel\n");
  EXPECT_TRUE(bench.front.printerDialog());
  EXPECT_FALSE(bench.front.printerDialog());
  EXPECT_EQ(bench.takeEvents(), (Lines{R"({"event":"printer","result":true})",
                                       R"({"event":"printer","result":false})"}));
  EXPECT_TRUE(stops([this] { bench.front.printerDialog(); }));
  EXPECT_EQ(bench.outcome.exitCode(), kUnanswered);
}

TEST_F(FrontEndEvents, LinesArePrinted) {
  bench.front.print("Courier", {"one", "", "\"two\"\t\xE9"}, 2);
  EXPECT_EQ(bench.takeEvents(), (Lines{"{\"event\":\"print\",\"font\":\"Courier\",\"lines\":"
                                       "[\"one\",\"\",\"\\\"two\\\"\\t\u00E9\"]}"}));
}

TEST_F(FrontEndEvents, ASaveDialogTellsWhatItProposes) {
  bench.play("choose C:\\out.cr2\n");
  const auto chosen = bench.front.fileDialog(
      {front::FileDialog::Kind::save, "CommonDialog2", "Save As", "", "C:\\figures", "a.cr2"});
  EXPECT_EQ(chosen, std::optional<std::string>{"C:\\out.cr2"});
  EXPECT_EQ(bench.takeEvents(),
            (Lines{R"({"event":"dialog","kind":"save","name":"CommonDialog2","title":"Save As",)"
                   R"("folder":"C:\\figures","file":"a.cr2","result":"C:\\out.cr2"})"}));
}

TEST_F(FrontEndEvents, ABoxOfOneButtonAnswersItselfWhateverItsIcon) {
  bench.play("answer No\n");
  for (const int icon : {0, 16, 32, 48, 64}) {
    EXPECT_EQ(bench.front.messageBox("text", "title", icon), front::Answer::ok) << icon;
  }
  EXPECT_EQ(bench.front.messageBox("text", "title", 4 + 32), front::Answer::no);
  const Lines events = bench.takeEvents();
  ASSERT_EQ(events.size(), 6U);
  EXPECT_EQ(events[1], R"({"event":"box","title":"title","text":"text","style":16,"answer":"OK"})");
  EXPECT_EQ(events[5], R"({"event":"box","title":"title","text":"text","style":36,"answer":"No"})");
}

TEST_F(FrontEndEvents, BoxesOfSeveralButtonsTakeTheirAnswersInOrder) {
  bench.play("answer OK\nanswer Cancel\nanswer Yes\nanswer No\n");
  EXPECT_EQ(bench.front.messageBox("", "", 1), front::Answer::ok);
  EXPECT_EQ(bench.front.messageBox("", "", 1), front::Answer::cancel);
  EXPECT_EQ(bench.front.messageBox("", "", 3), front::Answer::yes);
  EXPECT_EQ(bench.front.messageBox("", "", 4), front::Answer::no);
  EXPECT_TRUE(stops([this] { bench.front.messageBox("", "", 3 + 48); }));
}

TEST_F(FrontEndEvents, TheOutcomeIsTheMostSerious) {
  Outcome outcome;
  EXPECT_EQ(outcome.exitCode(), kDone);
  outcome.expectationFailed = true;
  EXPECT_EQ(outcome.exitCode(), kExpectationFailed);
  outcome.refused = true;
  EXPECT_EQ(outcome.exitCode(), kRefused);
  outcome.unanswered = true;
  EXPECT_EQ(outcome.exitCode(), kUnanswered);
  EXPECT_EQ((std::vector<int>{kDone, kExpectationFailed, kRefused, kUnanswered, kRunnerFailed}),
            (std::vector<int>{0, 1, 2, 3, 4}));
}

}  // namespace
}  // namespace norvik::headless
