// The history below the disk: what comes back.

#include "support/error_number.h"
#include "text/history_bench.h"

namespace norvik::tests {

namespace {

using text::HistoryEntry;

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

TEST_F(HistoryTest, TheOldSpellingComesBack) {
  folder.write("Norah.CR2", "old");
  folder.write("s", "new");
  act([&] { disk.replace("C:\\s", "C:\\norah.cr2"); });
  EXPECT_EQ(folder.files(), Lines{"norah.cr2"});
  restoreNewest();
  EXPECT_EQ(folder.files(), Lines{"Norah.CR2"});
  EXPECT_EQ(folder.read("Norah.CR2"), "old");
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

}  // namespace

}  // namespace norvik::tests
