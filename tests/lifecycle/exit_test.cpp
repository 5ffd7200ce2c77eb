// What the program leaves when it ends, where scripts cannot reach.

#include "headless/script_bench.h"

#include <gtest/gtest.h>

namespace norvik::lifecycle {
namespace {

using headless::Lines;
using headless::ScriptBench;

TEST(ExitNote, GoesBesideTheProgramFolder) {
  ScriptBench bench;
  bench.folder.write("Norvik/Notes.txt", "kept");
  bench.start();
  bench.opening().TextOpeningNotes.setText("first line\r\nsecond, with a comma");
  bench.play("exit\n");
  // The folder's path and the name are joined without a backslash.
  EXPECT_EQ(bench.folder.read("NorvikNotes.txt"),
            "**** 2002-03-04 05:06:07 ****\r\n"
            "**  **\r\n"
            "first line\r\nsecond, with a comma\r\n");
  EXPECT_EQ(bench.folder.read("Norvik/Notes.txt"), "kept");
  EXPECT_EQ(bench.folder.read("Notes.txt"), "(missing)");
}

TEST(ExitNote, IsAppended) {
  ScriptBench bench;
  bench.folder.write("NorvikNotes.txt", "older\r\n");
  bench.start();
  bench.opening().TextOpeningNotes.setText("newer");
  bench.play("exit\n");
  EXPECT_EQ(bench.folder.read("NorvikNotes.txt"),
            "older\r\n**** 2002-03-04 05:06:07 ****\r\n**  **\r\nnewer\r\n");
}

TEST(ExitNote, OfAnEmptyBoxIsNone) {
  ScriptBench bench;
  bench.start();
  bench.play("exit\n");
  EXPECT_EQ(bench.folder.read("NorvikNotes.txt"), "(missing)");
  EXPECT_EQ(bench.folder.read("Norvik/Notes.txt"), "(missing)");
}

TEST(Exit, HidesEverythingButTheTile) {
  ScriptBench bench;
  bench.start();
  bench.play("click menuRecent\nclick menuScreenRes\n");
  ASSERT_EQ(bench.opening().state(), front::WindowState::maximised);
  bench.play("exit\n");
  EXPECT_EQ(bench.opening().state(), front::WindowState::normal);
  for (const front::Control* control : bench.opening().controls()) {
    EXPECT_EQ(control->visible(), control == &bench.opening().PictureTile) << control->name();
  }
}

/// A form that stands open when the program ends.
struct ToolForm : front::Form {
  explicit ToolForm(std::string_view name) : Form(name, name) {}
};

TEST(Exit, UnloadsOpenFormsBeforeTheMainForm) {
  ScriptBench bench;
  ToolForm launcher("FormLaunch");
  ToolForm other("FormOther");
  for (ToolForm* form : {&other, &launcher}) bench.session().addForm(*form);
  bench.start();
  bench.play("load FormOther\nload FormTree\nload FormLaunch\n");
  EXPECT_EQ(
      bench.play("exit\n"),
      (Lines{R"({"event":"form","form":"FormLaunch","state":"unloaded"})",
             R"({"event":"form","form":"FormTree","state":"unloaded"})",
             R"({"event":"form","form":"FormOther","state":"unloaded"})",
             R"({"event":"sound","path":"C:\\WINDOWS\\Tallow3.wav"})",
             R"({"event":"form","form":"Opening","state":"unloaded"})", R"({"event":"end"})"}));
}

TEST(Exit, StoresTheRecentFiles) {
  ScriptBench bench;
  bench.start();
  bench.opening().ListMRU.add("C:\\a.cr2");
  bench.play("click menuRecent\nexit\n");
  EXPECT_EQ(bench.settings.get("MRUFiles", "0", ""), "C:\\a.cr2");
  EXPECT_EQ(bench.settings.get("MRUFiles", "1", "(none)"), "(none)");
}

/// A front end with a screen: it draws tiles, and its timers expire when events are pumped.
class DrawingFrontEnd : public headless::ScriptFrontEnd {
 public:
  using ScriptFrontEnd::ScriptFrontEnd;

  bool drawTile(front::Form& form, int left, int top) override {
    log.push_back(std::to_string(left) + "," + std::to_string(top));
    opening = static_cast<front::Opening*>(&form);
    return true;
  }
  void pumpEvents() override {
    if (opening == nullptr) return;
    log.emplace_back(opening->TimerTileClose.running() ? "pump" : "idle");
    if (opening->TimerTileClose.running()) opening->TimerTileClose.expired.raise();
  }

  Lines log;
  front::Opening* opening = nullptr;
};

TEST(ClosingAnimation, FillsColumnByColumnAtTheTimersPace) {
  headless::BenchOf<DrawingFrontEnd> bench;
  bench.start();
  const int tile = bench.front.tileWidth();
  ASSERT_EQ(bench.front.tileHeight(), tile);
  // Two columns and a bit, a row and a bit; the form's size is in twips, 15 to a pixel.
  const auto twips = [tile](int tiles) { return static_cast<float>((tiles * tile + 1) * 15); };
  bench.opening().setBox({0, 0, twips(2), twips(1)});
  bench.play("exit\n");
  const std::string one = std::to_string(tile);
  const std::string two = std::to_string(2 * tile);
  EXPECT_EQ(bench.front.log, (Lines{"0,0", "0," + one, "pump", one + ",0", one + "," + one, "pump",
                                    two + ",0", two + "," + one, "pump"}));
  EXPECT_EQ(bench.opening().TimerTileClose.interval(), 200);
}

}  // namespace
}  // namespace norvik::lifecycle
