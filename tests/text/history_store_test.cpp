// The history's store: its limits, its names, and what a start finds in it.

#include "text/history_bench.h"

#include <unistd.h>

namespace norvik::tests {

namespace {

using text::History;
using text::HistoryEntry;

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

TEST_F(HistoryTest, AFileNamedLikeTheTextIsKeptBesideIt) {
  folder.write("Entry.TXT", "old");
  act([&] { disk.remove("C:\\Entry.TXT"); });
  EXPECT_EQ(list(), Lines{"deleted C:\\Entry.TXT: old"});
  restoreNewest();
  EXPECT_EQ(folder.files(), Lines{"Entry.TXT"});
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
