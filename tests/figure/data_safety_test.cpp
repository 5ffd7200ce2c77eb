// Every act that changes a user's file, with each operation of the host failing in turn, in each of
// the ways: the file is then the old or the new one, byte for byte, and no other file is harmed.

#include "support/faulty_host.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>
#include <unistd.h>

namespace norvik::figure {

namespace {

using tests::Fault;
using tests::FaultyHost;
using tests::ScriptedWorkbench;
using tests::TemporaryFolder;

constexpr const char* kHead =
    "{\r\n"
    "figureResFile :Runtime:Geometries:a.obj\r\n"
    "actor BODY:1\r\n"
    "\t{\r\n"
    "\t}\r\n"
    "figure\r\n"
    "\t{\r\n"
    "\tmaterial skin\r\n"
    "\t\t{\r\n";
constexpr const char* kTail =
    "\t\t}\r\n"
    "\tpresetMaterial skin\r\n"
    "\t}\r\n"
    "}\r\n";

std::string figureWithTexture(const std::string& line) {
  return kHead + line + kTail;
}

const std::string kOld = figureWithTexture("\ttextureMap old.tif\r\n");
const std::string kNew = figureWithTexture("\ttextureMap new.tif\r\n");

std::string replacedAll(std::string text, const std::string& wanted, const std::string& with) {
  for (auto at = text.find(wanted); at != std::string::npos;
       at = text.find(wanted, at + with.size())) {
    text.replace(at, wanted.size(), with);
  }
  return text;
}

/// How the folders of a run are laid out.
struct Layout {
  bool links = false;  ///< figures are links into another folder, and each folder is a file system
  bool kept = false;   ///< old versions are kept in a folder outside the drive
};

/// An act of the operator on C:\work\figure.cr2.
struct Act {
  std::function<void(const TemporaryFolder&)> files;  ///< beside the figure and its old text
  std::string oldText = kOld;
  std::string newText = kNew;
  std::function<void(ScriptedWorkbench&)> before = [](ScriptedWorkbench&) {};
  std::string script;
  /// The file that gets the new text, if it is not the figure.
  std::string target = "work/figure.cr2";
  std::string oldTarget = {};    ///< its text before; none if it is missing then
  std::string oldSpelling = {};  ///< of the target's name, if it is to change
  /// What else must hold.
  std::function<void(const TemporaryFolder&)> check = [](const TemporaryFolder&) {};
  /// Whether the act, done again without a fault, gets through whatever a run has left.
  bool repeatable = true;
};

struct Way {
  Fault fault;
  int error;
};

constexpr Way kWays[] = {{Fault::error, EIO},   {Fault::error, EACCES}, {Fault::error, ENOSPC},
                         {Fault::unheard, EIO}, {Fault::fullDisk, 0},   {Fault::killed, 0},
                         {Fault::powerLost, 0}};

bool isWhole(const TemporaryFolder& folder, const std::string& name, const std::string& oldText,
             const std::string& newText) {
  const std::string text = folder.read(name);
  return text == oldText || text == newText;
}

/// A link that dangles is a name that is free.
bool isThere(const TemporaryFolder& folder, const std::string& name) {
  return ::access(folder.path(name).c_str(), F_OK) == 0;
}

void checkTexts(const TemporaryFolder& folder, const Act& act) {
  const std::string figure = "work/figure.cr2";
  const bool changesFigure = act.target == figure;
  ASSERT_TRUE(isThere(folder, figure)) << "the figure is gone";
  EXPECT_TRUE(isWhole(folder, figure, act.oldText, changesFigure ? act.newText : act.oldText))
      << folder.read(figure);
  if (!changesFigure) {
    if (!act.oldSpelling.empty() && isThere(folder, act.oldSpelling)) {
      EXPECT_TRUE(isWhole(folder, act.oldSpelling, act.oldTarget, act.newText));
    } else if (isThere(folder, act.target)) {
      EXPECT_TRUE(isWhole(folder, act.target, act.oldTarget.empty() ? act.newText : act.oldTarget,
                          act.newText))
          << folder.read(act.target);
    } else {
      EXPECT_TRUE(act.oldTarget.empty()) << "the target is gone";
    }
  }
  act.check(folder);
}

/// What was a link stays one, and keeps its spelling.
void expectLinks(const TemporaryFolder& folder, const Act& act) {
  const auto host = text::makePosixHost();
  std::string target;
  EXPECT_EQ(host->readLink(folder.path("work/figure.cr2"), target), 0);
  const std::string& name = act.oldSpelling.empty() ? act.target : act.oldSpelling;
  EXPECT_TRUE(act.oldTarget.empty() || host->readLink(folder.path(name), target) == 0);
}

void layOut(const TemporaryFolder& folder, const Act& act, Layout layout) {
  folder.makeFolder("work");
  folder.makeFolder("Norvik");
  const auto put = [&](const std::string& name, const std::string& text) {
    if (!layout.links) return folder.write(name, text);
    const std::string title = name.substr(name.rfind('/') + 1);
    folder.write("real/" + title, text);
    folder.makeLink(name, folder.path("real/" + title));
  };
  put("work/figure.cr2", act.oldText);
  if (!act.oldTarget.empty()) {
    put(act.oldSpelling.empty() ? act.target : act.oldSpelling, act.oldTarget);
  }
  if (act.files) act.files(folder);
}

/// Does the act once; whether the fault came.
bool runOnce(const TemporaryFolder& folder, const TemporaryFolder& store, const Act& act,
             Layout layout, const Way& way, std::uint64_t n) {
  const auto real = text::makePosixHost();
  FaultyHost host(*real);
  if (layout.links) host.separateFolders();
  text::History history(host, store.path());
  ScriptedWorkbench bench(host, folder.path(), layout.kept ? &history : nullptr);
  bench.session().load(bench.opening());
  bench.opening().OpenedPath = "C:\\work\\figure.cr2";
  act.before(bench);
  host.setFault(way.fault, n, way.error);
  bench.run(act.script);
  const bool met = host.faultMet();
  EXPECT_FALSE(bench.outcome().refused) << bench.takeEvents();
  return met;
}

/// What the next start finds: entries that are whole, and nothing else.
void checkStore(const TemporaryFolder& store, const Act& act, bool mustKeep) {
  const auto host = text::makePosixHost();
  text::History history(*host, store.path());
  std::size_t targets = 0;
  const auto entries = history.entries();
  for (const text::HistoryEntry& entry : entries) {
    const std::string text = store.read(history.fileOf(entry).substr(store.path().size() + 1));
    EXPECT_EQ(text.size(), entry.size);
    EXPECT_TRUE(text == act.oldText || text == act.oldTarget || text == act.newText) << text;
    if (text == act.oldText || text == act.oldTarget) ++targets;
  }
  EXPECT_EQ(store.files().size(), 2 * entries.size()) << "something is left half made";
  const bool replaces = act.target == "work/figure.cr2" || !act.oldTarget.empty();
  if (mustKeep) {
    EXPECT_EQ(targets, replaces ? 1U : 0U);
  }
}

void expectNoStrays(const TemporaryFolder& folder) {
  for (const std::string& name : folder.files()) {
    EXPECT_EQ(name.find(".norvik-"), std::string::npos) << name;
  }
}

/// Fails one operation after the other in one way, until a run meets no fault.
void failEverywhere(const Act& act, Layout layout, const Way& way) {
  bool met = true;
  std::uint64_t n = 0;
  while (met) {
    SCOPED_TRACE("fault " + std::to_string(static_cast<int>(way.fault)) + ", error " +
                 std::to_string(way.error) + ", at " + std::to_string(++n));
    const TemporaryFolder folder;
    const TemporaryFolder store;
    layOut(folder, act, layout);
    met = runOnce(folder, store, act, layout, way, n);
    checkTexts(folder, act);
    checkStore(store, act, layout.kept && !met);
    if (layout.links) expectLinks(folder, act);
    if (testing::Test::HasFailure()) return;
    // Only who knows what happened can tidy up.
    if (!met || way.fault == Fault::error || way.fault == Fault::fullDisk) expectNoStrays(folder);
    if (met && act.repeatable) runOnce(folder, store, act, layout, {Fault::none, 0}, 0);
    const bool done = !met || act.repeatable;
    // A link keeps its spelling.
    const bool keepsSpelling = layout.links && !act.oldSpelling.empty();
    const std::string& target = keepsSpelling ? act.oldSpelling : act.target;
    EXPECT_TRUE(!done || (isThere(folder, target) && folder.read(target) == act.newText));
    if (testing::Test::HasFailure()) return;
  }
  // A mere move writes nothing that a full disk could refuse.
  EXPECT_TRUE(n > 1 || way.fault == Fault::fullDisk) << "nothing was there to fail";
}

void failEverywhere(const Act& act, Layout layout) {
  for (const Way& way : kWays) {
    failEverywhere(act, layout, way);
    if (testing::Test::HasFailure()) return;
  }
}

class DataSafety : public testing::TestWithParam<Layout> {};

INSTANTIATE_TEST_SUITE_P(Layouts, DataSafety,
                         testing::Values(Layout{}, Layout{.links = true}, Layout{.kept = true}),
                         [](const auto& layout) {
                           return std::string(layout.param.links ? "Links" : "Plain") +
                                  (layout.param.kept ? "Kept" : "");
                         });

void editTexture(ScriptedWorkbench& bench) {
  front::Opening& opening = bench.opening();
  opening.LabelMainTex.setFore(front::kPathEdited);
  opening.TextMainTex.setText("new.tif");
  opening.PathsEdited = true;
}

TEST_P(DataSafety, SaveOverTheFigure) {
  Act act;
  act.before = editTexture;
  act.script = "choose C:\\work\\figure.cr2\nclick MenuFileSave\n";
  failEverywhere(act, GetParam());
}

TEST_P(DataSafety, SaveUnderANewName) {
  Act act;
  act.before = editTexture;
  act.script = "choose C:\\new\\other.cr2\nclick MenuFileSave\n";
  act.files = [](const TemporaryFolder& folder) { folder.makeFolder("new"); };
  act.target = "new/other.cr2";
  failEverywhere(act, GetParam());
}

TEST_P(DataSafety, SaveAsOverAnotherFigure) {
  Act act;
  act.before = editTexture;
  act.script = "choose C:\\work\\Other.cr2\nclick MenuFileSaveAs\n";
  act.target = "work/Other.cr2";
  act.oldSpelling = "work/other.CR2";
  act.oldTarget = "another figure\r\n";
  failEverywhere(act, GetParam());
}

TEST_P(DataSafety, SaveBeforeOpen) {
  Act act;
  act.before = editTexture;
  act.script =
      "answer Yes\nchoose C:\\work\\figure.cr2\nchoose C:\\work\\figure.cr2\ncancel\n"
      "click MenuFileOpen\n";
  failEverywhere(act, GetParam());
}

TEST_P(DataSafety, SaveAtTheExit) {
  Act act;
  act.before = editTexture;
  act.script = "answer Yes\nchoose C:\\work\\figure.cr2\nexit\n";
  failEverywhere(act, GetParam());
}

TEST_P(DataSafety, SaveAsOfAToolsResult) {
  Act act;
  act.files = [](const TemporaryFolder& folder) { folder.write("Norvik/CR2.tmp", kNew); };
  act.before = [](ScriptedWorkbench& bench) { bench.opening().PendingTempSave = true; };
  act.script = "choose C:\\work\\figure.cr2\nclick MenuFileSaveAs\n";
  act.check = [](const TemporaryFolder& folder) {
    const bool waits = folder.exists("Norvik/CR2.tmp") && folder.read("Norvik/CR2.tmp") == kNew;
    EXPECT_TRUE(waits || folder.read("work/figure.cr2") == kNew) << "the result is gone";
  };
  act.repeatable = false;
  failEverywhere(act, GetParam());
}

TEST_P(DataSafety, CheckSGIOnTheWayToTheLists) {
  Act act;
  act.oldText = replacedAll(kOld, "\r\n", "\n");
  act.newText = kOld;
  act.script = "answer OK\nchoose C:\\work\\figure.cr2\nclick MenuFileOpen\n";
  act.check = [old = act.oldText](const TemporaryFolder& folder) {
    const auto holdsOld = [&](const char* name) {
      return isThere(folder, name) && folder.read(name) == old;
    };
    EXPECT_TRUE(holdsOld("work/figure.cr2") || holdsOld("work/figureCR2.bak"));
  };
  act.repeatable = false;
  failEverywhere(act, GetParam());
}

TEST_P(DataSafety, SpaceChopperOnTheWayToTheLists) {
  Act act;
  act.oldText = " " + replacedAll(kOld, "\r\n\t", "\r\n \t");
  act.newText = kOld;
  act.script = "choose C:\\work\\figure.cr2\nclick MenuFileOpen\n";
  failEverywhere(act, GetParam());
}

/// Figures of several blocks, whose writing can break off in the middle.
TEST(DataSafetyOfLargeFigures, AFullDiskLeavesTheOldOne) {
  std::string deltas;
  while (deltas.size() < text::kBlockSize) deltas += "\td 123 0.001 -0.002 0.003\r\n";
  Act save;
  save.oldText = figureWithTexture("\ttextureMap old.tif\r\n" + deltas);
  save.newText = figureWithTexture("\ttextureMap new.tif\r\n" + deltas);
  save.before = editTexture;
  save.script = "choose C:\\work\\figure.cr2\nclick MenuFileSave\n";
  Act check;
  check.oldText = replacedAll(save.oldText, "\r\n", "\r");
  check.newText = save.oldText;
  check.script = "answer OK\nchoose C:\\work\\figure.cr2\nclick MenuFileOpen\n";
  check.repeatable = false;
  for (const Act& act : {save, check}) {
    failEverywhere(act, {}, {Fault::fullDisk, 0});
    failEverywhere(act, {.links = true}, {Fault::fullDisk, 0});
    failEverywhere(act, {.kept = true}, {Fault::fullDisk, 0});
  }
}

}  // namespace

}  // namespace norvik::figure
