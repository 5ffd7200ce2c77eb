// The history below the disk: what is kept.

#include "text/history_bench.h"

#include <unistd.h>

namespace norvik::tests {

namespace {

using text::History;
using text::Loss;

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

TEST_F(HistoryTest, AFileWithAnotherNameIsCopied) {
  folder.write("f", "old");
  ASSERT_EQ(::link(folder.path("f").c_str(), folder.path("g").c_str()), 0);
  act([&] { disk.remove("C:\\f"); });
  put("C:\\g", "changed");
  EXPECT_EQ(list(), (Lines{"changed C:\\g: old", "deleted C:\\f: old"}));
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

TEST_F(HistoryTest, TellsWhatHasGone) {
  folder.write("f", "old");
  act([&] { disk.remove("f"); });
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].number, history.entries()[0].number);
  EXPECT_EQ(told[0].what, Loss::deleted);
}

}  // namespace

}  // namespace norvik::tests
