// The history below the disk: what is kept, and what comes back.

#include "text/history.h"

#include "support/drive.h"
#include "support/error_number.h"
#include "text/line_writer.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace norvik::tests {

namespace {

using text::History;
using text::HistoryEntry;
using text::Loss;

class HistoryTest : public testing::Test, public Drive {
 protected:
  HistoryTest() {
    disk.setHistory(&history);
    history.setClock([] { return std::string("2002-03-04 05:06:07"); });
    history.setLimits([this] { return limits; });
    history.setListener([this](const HistoryEntry& entry) { told.push_back(entry); });
  }

  std::string kept(const HistoryEntry& entry) const {
    return store.read(history.fileOf(entry).substr(store.path().size() + 1));
  }
  /// The old versions, newest first, as "what path: text".
  std::vector<std::string> list() {
    std::vector<std::string> result;
    for (const HistoryEntry& entry : history.entries()) {
      result.push_back(std::string(lossName(entry.what)) + " " + entry.path + ": " + kept(entry));
    }
    return result;
  }
  /// What a tool does in one act.
  void act(const std::function<void()>& step) {
    const History::Act act(&history, "PictureTool");
    step();
  }
  void put(const char* path, const std::string& text) {
    act([&] { text::LineWriter(disk, path).bytes(text); });
  }
  std::uint64_t inode(const std::string& name) const {
    struct stat status {};
    EXPECT_EQ(::stat(name.c_str(), &status), 0);
    return status.st_ino;
  }
  void restoreNewest() {
    const History::Act undo(&history, "undo");
    disk.restore(history.entries().at(0));
  }

  using Lines = std::vector<std::string>;

  TemporaryFolder store;
  History history{*host, store.path()};
  History::Limits limits;
  std::vector<HistoryEntry> told;
};

TEST_F(HistoryTest, KeepsAReplacedFileWithoutACopy) {
  folder.write("work/Norah.cr2", "old");
  folder.setMode("work/Norah.cr2", 0640);
  folder.write("new.txt", "newer");
  const auto old = inode(folder.path("work/Norah.cr2"));
  act([&] { disk.replace("C:\\new.txt", "c:\\work\\..\\work\\norah.cr2"); });
  const auto entries = history.entries();
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].when, "2002-03-04 05:06:07");
  EXPECT_EQ(entries[0].tool, "PictureTool");
  EXPECT_EQ(entries[0].what, Loss::replaced);
  EXPECT_EQ(entries[0].path, "C:\\work\\norah.cr2");
  EXPECT_EQ(entries[0].hostPath, folder.path("work/Norah.cr2"));
  EXPECT_EQ(entries[0].size, 3U);
  EXPECT_EQ(entries[0].mode, 0640U);
  EXPECT_EQ(kept(entries[0]), "old");
  EXPECT_EQ(inode(history.fileOf(entries[0])), old);
  EXPECT_EQ(store.files(), (Lines{"entry-00000001/Norah.cr2", "entry-00000001/entry.txt"}));
  EXPECT_EQ(store.read("entry-00000001/entry.txt"),
            "when: 2002-03-04 05:06:07\ntool: PictureTool\nwhat: replaced\n"
            "path: C:\\work\\norah.cr2\nhost: " +
                folder.path("work/Norah.cr2") + "\nfile: Norah.cr2\nsize: 3\nmode: 640\nend\n");
}

TEST_F(HistoryTest, KeepsADeletedFile) {
  folder.write("f", "old");
  act([&] { disk.remove("f"); });
  EXPECT_EQ(list(), Lines{"deleted C:\\f: old"});
  restoreNewest();
  EXPECT_EQ(folder.read("f"), "old");
  // Nothing was there that could have been lost.
  EXPECT_EQ(history.entries().size(), 1U);
}

TEST_F(HistoryTest, KeepsACopyOfAFileThatIsOpenedForOutput) {
  folder.write("f", "old");
  const auto number = inode(folder.path("f"));
  put("C:\\f", "new");
  EXPECT_EQ(list(), Lines{"changed C:\\f: old"});
  EXPECT_EQ(inode(folder.path("f")), number) << "the file itself is written, as before";
  EXPECT_NE(inode(history.fileOf(history.entries()[0])), number);
}

TEST_F(HistoryTest, KeepsAFileThatGrowsOrChangesOnlyOnceItDoes) {
  folder.write("f", "old");
  act([&] { disk.openForAppending("C:\\f"); });
  act([&] { disk.openForUpdating("C:\\f"); });
  EXPECT_EQ(list(), Lines{});
  act([&] { text::LineWriter(disk, "C:\\f", text::LineWriter::Mode::append).bytes("er"); });
  act([&] {
    const auto file = disk.openForUpdating("C:\\f");
    EXPECT_EQ(file->seek(1), 0);
    EXPECT_EQ(file->write("L"), 0);
    EXPECT_EQ(file->write("D"), 0);
  });
  EXPECT_EQ(list(), (Lines{"changed C:\\f: older", "changed C:\\f: old"}));
  EXPECT_EQ(folder.read("f"), "oLDer");
}

TEST_F(HistoryTest, AMovedFileIsNotLost) {
  folder.write("f", "old");
  act([&] { disk.rename("C:\\f", "C:\\g"); });
  EXPECT_EQ(list(), Lines{});
}

TEST_F(HistoryTest, KeepsTheFirstStateOfAnActAlone) {
  folder.write("f", "old");
  act([&] {
    for (const char* part : {"a", "b", "c"}) {
      text::LineWriter(disk, "C:\\f", text::LineWriter::Mode::append).bytes(part);
    }
    text::LineWriter(disk, "C:\\made").bytes("x");
    text::LineWriter(disk, "C:\\made", text::LineWriter::Mode::append).bytes("y");
    disk.replace("C:\\made", "C:\\f");
    disk.remove("C:\\f");
  });
  EXPECT_EQ(list(), Lines{"changed C:\\f: old"});
}

TEST_F(HistoryTest, AnActWithinAnActStandsForItself) {
  act([&] {
    text::LineWriter(disk, "C:\\f").bytes("by the outer");
    const History::Act inner(&history, "FormTree.LabelDone");
    text::LineWriter(disk, "C:\\f").bytes("by the inner");
  });
  EXPECT_EQ(list(), Lines{"changed C:\\f: by the outer"});
  EXPECT_EQ(history.entries()[0].tool, "FormTree.LabelDone");
}

TEST_F(HistoryTest, AnUndoCanBeUndone) {
  folder.write("f", "old");
  folder.write("s", "new");
  act([&] { disk.replace("C:\\s", "C:\\f"); });
  restoreNewest();
  EXPECT_EQ(folder.read("f"), "old");
  EXPECT_EQ(list(), (Lines{"replaced C:\\f: new", "replaced C:\\f: old"}));
  EXPECT_EQ(history.entries()[0].tool, "undo");
  restoreNewest();
  EXPECT_EQ(folder.read("f"), "new");
  restoreNewest();
  EXPECT_EQ(folder.read("f"), "old");
  EXPECT_EQ(history.entries().size(), 4U);
  EXPECT_EQ(folder.files(), Lines{"f"});
}

TEST_F(HistoryTest, WhatComesBackIsAFileOfItsOwn) {
  folder.write("f", "old");
  act([&] { disk.remove("C:\\f"); });
  restoreNewest();
  put("C:\\f", "spoilt");
  EXPECT_EQ(list(), (Lines{"changed C:\\f: old", "deleted C:\\f: old"}));
}

TEST_F(HistoryTest, AReadOnlyFileComesBackAsOne) {
  folder.write("f", "old");
  folder.setMode("f", 0444);
  folder.write("s", "new");
  act([&] { disk.replaceKeeping("C:\\s", "C:\\f", "C:\\b"); });
  EXPECT_EQ(folder.mode("f") & 0200U, 0200U);
  EXPECT_EQ(folder.mode("b"), 0444U);
  restoreNewest();
  EXPECT_EQ(folder.read("f"), "old");
  EXPECT_EQ(folder.mode("f"), 0444U);
  // And what is read-only by now gives way again.
  restoreNewest();
  EXPECT_EQ(folder.read("f"), "new");
  EXPECT_EQ(folder.mode("f") & 0200U, 0200U);
}

TEST_F(HistoryTest, ModesAreTheTextsOwn) {
  folder.write("f", "old");
  folder.setMode("f", 0604);
  act([&] { disk.remove("C:\\f"); });
  store.setMode("entry-00000001/f", 0400);
  restoreNewest();
  EXPECT_EQ(folder.mode("f"), 0604U);
}

TEST_F(HistoryTest, AFileBehindALinkComesBackBehindIt) {
  folder.write("real/f.cr2", "old");
  folder.makeLink("l.cr2", folder.path("real/f.cr2"));
  folder.write("s", "new");
  act([&] { disk.replace("C:\\s", "C:\\l.cr2"); });
  EXPECT_EQ(list(), Lines{"replaced C:\\l.cr2: old"});
  EXPECT_EQ(history.entries()[0].hostPath, folder.path("real/f.cr2"));
  restoreNewest();
  EXPECT_EQ(folder.read("real/f.cr2"), "old");
  std::string target;
  EXPECT_EQ(host->readLink(folder.path("l.cr2"), target), 0);
}

TEST_F(HistoryTest, ADeletedLinkLeavesACopyOfItsFile) {
  folder.write("real.cr2", "old");
  folder.makeLink("l.cr2", folder.path("real.cr2"));
  act([&] { disk.remove("C:\\l.cr2"); });
  EXPECT_EQ(list(), Lines{"deleted C:\\l.cr2: old"});
  put("C:\\real.cr2", "another");
  EXPECT_EQ(list(), (Lines{"changed C:\\real.cr2: old", "deleted C:\\l.cr2: old"}));
  disk.restore(history.entries()[1]);
  EXPECT_EQ(folder.read("l.cr2"), "old");
  EXPECT_EQ(folder.read("real.cr2"), "another");
}

TEST_F(HistoryTest, NamesHaveAnyBytes) {
  // A host's name in UTF-8, found by the single bytes of a figure file, and one that is neither.
  folder.write("Z\xC3\xBCrich.cr2", "old");
  folder.write("odd\xFF\n%.cr2", "odd");
  act([&] { disk.remove("C:\\z\xFCrich.CR2"); });
  act([&] { disk.remove("C:\\odd\xFF\n%.cr2"); });
  EXPECT_EQ(list(), (Lines{"deleted C:\\odd\xFF\n%.cr2: odd", "deleted C:\\z\xFCrich.CR2: old"}));
  disk.restore(history.entries()[0]);
  disk.restore(history.entries()[1]);
  EXPECT_EQ(folder.files(), (Lines{"Z\xC3\xBCrich.cr2", "odd\xFF\n%.cr2"}));
}

TEST_F(HistoryTest, TheOldSpellingComesBack) {
  folder.write("Norah.CR2", "old");
  folder.write("s", "new");
  act([&] { disk.replace("C:\\s", "C:\\norah.cr2"); });
  EXPECT_EQ(folder.files(), Lines{"norah.cr2"});
  restoreNewest();
  EXPECT_EQ(folder.files(), Lines{"Norah.CR2"});
  EXPECT_EQ(folder.read("Norah.CR2"), "old");
}

TEST_F(HistoryTest, AFileWithAnotherNameIsCopied) {
  folder.write("f", "old");
  ASSERT_EQ(::link(folder.path("f").c_str(), folder.path("g").c_str()), 0);
  act([&] { disk.remove("C:\\f"); });
  put("C:\\g", "changed");
  EXPECT_EQ(list(), (Lines{"changed C:\\g: old", "deleted C:\\f: old"}));
}

TEST_F(HistoryTest, AFileNamedLikeTheTextIsKeptBesideIt) {
  folder.write("Entry.TXT", "old");
  act([&] { disk.remove("C:\\Entry.TXT"); });
  EXPECT_EQ(list(), Lines{"deleted C:\\Entry.TXT: old"});
  restoreNewest();
  EXPECT_EQ(folder.files(), Lines{"Entry.TXT"});
}

TEST_F(HistoryTest, ScratchFilesAndTheStoreItselfAreNotKept) {
  disk.mount('Z', "/");
  folder.write("Norvik/bp.txt", "scratch");
  folder.write("Norvik/Notes.txt", "notes");
  folder.write("work/bp.txt", "the user's");
  history.setScratchFiles(folder.path("Norvik"), [](auto name) { return name == "bp.txt"; });
  act([&] { disk.remove("C:\\Norvik\\bp.txt"); });
  EXPECT_EQ(list(), Lines{});
  act([&] { disk.remove("C:\\Norvik\\Notes.txt"); });
  act([&] { disk.remove("C:\\work\\bp.txt"); });
  const Lines both{"deleted C:\\work\\bp.txt: the user's", "deleted C:\\Norvik\\Notes.txt: notes"};
  EXPECT_EQ(list(), both);
  store.write("loose.txt", "x");
  act([&] { disk.remove(*disk.systemPath(store.path("loose.txt"))); });
  EXPECT_EQ(list(), both);
}

TEST_F(HistoryTest, TheOldestGoFirst) {
  limits.entries = 3;
  for (const char* name : {"a", "b", "c", "d", "e"}) {
    folder.write(name, name);
    act([&] { disk.remove(name); });
  }
  EXPECT_EQ(list(), (Lines{"deleted C:\\e: e", "deleted C:\\d: d", "deleted C:\\c: c"}));
  limits.bytes = 10;
  folder.write("f", "12345678");
  act([&] { disk.remove("f"); });
  EXPECT_EQ(list(), (Lines{"deleted C:\\f: 12345678", "deleted C:\\e: e", "deleted C:\\d: d"}));
  folder.write("g", "1234567890");
  act([&] { disk.remove("g"); });
  EXPECT_EQ(list(), Lines{"deleted C:\\g: 1234567890"});
  EXPECT_EQ(store.files().size(), 2U);
}

TEST_F(HistoryTest, WhatIsLargerThanAllIsNotKept) {
  limits.bytes = 2;
  folder.write("f", "old");
  act([&] { disk.remove("f"); });
  EXPECT_EQ(list(), Lines{});
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].number, 0U);
  EXPECT_EQ(told[0].path, "C:\\f");
}

TEST_F(HistoryTest, ALimitOfNoneTurnsItOff) {
  for (const auto& none : {History::Limits{0, 100}, History::Limits{100, 0}}) {
    limits = none;
    folder.write("f", "old");
    act([&] { disk.remove("f"); });
    put("C:\\g", "again");
  }
  EXPECT_EQ(list(), Lines{});
  EXPECT_TRUE(told.empty());
}

TEST_F(HistoryTest, TellsWhatHasGone) {
  folder.write("f", "old");
  act([&] { disk.remove("f"); });
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].number, history.entries()[0].number);
  EXPECT_EQ(told[0].what, Loss::deleted);
}

TEST_F(HistoryTest, AStoreThatTakesNothingStopsNoTool) {
  folder.write("f", "old");
  folder.write("g", "old");
  folder.write("s", "new");
  History broken(*host, "/proc/nowhere");
  broken.setListener([this](const HistoryEntry& entry) { told.push_back(entry); });
  disk.setHistory(&broken);
  disk.replace("C:\\s", "C:\\f");
  disk.remove("C:\\g");
  text::LineWriter(disk, "C:\\f").bytes("newest");
  EXPECT_EQ(folder.files(), Lines{"f"});
  EXPECT_EQ(folder.read("f"), "newest");
  ASSERT_EQ(told.size(), 3U);
  for (const HistoryEntry& entry : told) EXPECT_EQ(entry.number, 0U);
}

TEST_F(HistoryTest, RestoringSaysWhyItCannot) {
  folder.write("a/f", "old");
  act([&] { disk.remove("C:\\a\\f"); });
  const HistoryEntry entry = history.entries()[0];
  folder.makeFolder("a/f");
  EXPECT_EQ(errorNumber([&] { disk.restore(entry); }), 75);
  ASSERT_EQ(::rmdir(folder.path("a/f").c_str()), 0);
  ASSERT_EQ(::rmdir(folder.path("a").c_str()), 0);
  EXPECT_EQ(errorNumber([&] { disk.restore(entry); }), 76);
  text::Disk elsewhere(*host);
  elsewhere.setHistory(&history);
  EXPECT_EQ(errorNumber([&] { elsewhere.restore(entry); }), 76);
  EXPECT_EQ(folder.files(), Lines{});
}

TEST_F(HistoryTest, TheNextStartClearsWhatIsHalfMade) {
  folder.write("f", "old");
  act([&] { disk.remove("f"); });
  store.write("entry-00000002.new/f", "half");
  store.write("entry-00000003.old/f", "half");
  store.write("entry-00000004/f", "without a text");
  store.write("mine.txt", "not the store's");
  History next(*host, store.path());
  EXPECT_EQ(next.entries().size(), 1U);
  EXPECT_EQ(store.files(), (Lines{"entry-00000001/entry.txt", "entry-00000001/f",
                                  "entry-00000004/f", "mine.txt"}));
}

TEST_F(HistoryTest, TheNextStartForgetsAFileThatNothingReplaced) {
  folder.write("f", "old");
  act([&] { disk.remove("f"); });
  // The process ended between the keeping and the step.
  ASSERT_EQ(::link(store.path("entry-00000001/f").c_str(), folder.path("f").c_str()), 0);
  History next(*host, store.path());
  EXPECT_EQ(next.entries().size(), 0U);
  EXPECT_EQ(folder.read("f"), "old");
}

TEST_F(HistoryTest, WritingToAFileThatAnEntrySharesLeavesTheEntryAlone) {
  folder.write("f", "old");
  act([&] { disk.remove("f"); });
  ASSERT_EQ(::link(store.path("entry-00000001/f").c_str(), folder.path("f").c_str()), 0);
  put("C:\\f", "new");
  EXPECT_EQ(list(), (Lines{"changed C:\\f: old", "deleted C:\\f: old"}));
  ASSERT_EQ(::unlink(folder.path("f").c_str()), 0);
  disk.restore(history.entries()[1]);
  act([&] { text::LineWriter(disk, "C:\\f", text::LineWriter::Mode::append).bytes("er"); });
  EXPECT_EQ(kept(history.entries()[2]), "old");
}

TEST_F(HistoryTest, TwoProgramsShareAStore) {
  History second(*host, store.path());
  text::Disk disk2(*host);
  disk2.mount('C', folder.path());
  disk2.setHistory(&second);
  for (const char* name : {"a", "b", "c", "d"}) folder.write(name, name);
  disk.remove("a");
  disk2.remove("b");
  disk.remove("c");
  disk2.remove("d");
  const Lines all{"deleted C:\\d: d", "deleted C:\\c: c", "deleted C:\\b: b", "deleted C:\\a: a"};
  EXPECT_EQ(list(), all);
  EXPECT_EQ(second.entries().size(), 4U);
}

TEST_F(HistoryTest, TheStoreIsForItsOwnerAlone) {
  History made(*host, store.path("new/"));
  EXPECT_EQ(store.mode("new"), 0700U);
  EXPECT_EQ(made.folder(), store.path("new"));
}

TEST_F(HistoryTest, AnotherFileSystemGetsACopy) {
  if (::access("/dev/shm", W_OK) != 0) GTEST_SKIP() << "one file system";
  const TemporaryFolder elsewhere("/dev/shm");
  History far(*host, elsewhere.path());
  disk.setHistory(&far);
  const std::string content = std::string(3 * text::kBlockSize, 'x') + "end";
  folder.write("f", content);
  disk.remove("C:\\f");
  EXPECT_EQ(elsewhere.read("entry-00000001/f"), content);
  disk.restore(far.entries()[0]);
  EXPECT_EQ(folder.read("f"), content);
  disk.setHistory(&history);
}

}  // namespace

}  // namespace norvik::tests
