// Names, folders and attributes. How files take each other's names is in disk_moves_test.cpp.

#include "text/disk.h"

#include "support/drive.h"
#include "support/error_number.h"
#include "support/faulty_host.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::text {

namespace {

using tests::errorNumber;

class DiskTest : public testing::Test, public tests::Drive {
 protected:
  std::string read(std::string_view path) const {
    const auto file = disk.openForReading(path);
    std::string bytes(100, '\0');
    std::size_t got = 0;
    EXPECT_EQ(file->read(bytes.data(), bytes.size(), got), 0);
    bytes.resize(got);
    return bytes;
  }
};

TEST_F(DiskTest, FindsNamesWithoutRegardToCase) {
  folder.write("Runtime/Libraries/Figure.CR2", "x");
  EXPECT_EQ(read("C:\\Runtime\\Libraries\\Figure.CR2"), "x");
  EXPECT_EQ(read("c:\\RUNTIME\\libraries\\fIGURE.cr2"), "x");
  EXPECT_EQ(disk.nameOnDisk("C:\\runtime\\libraries\\figure.cr2"), "Figure.CR2");
  EXPECT_EQ(disk.nameOnDisk("C:\\runtime\\LIBRARIES"), "Libraries");
  EXPECT_EQ(disk.nameOnDisk("C:\\runtime\\libraries\\other.cr2"), "");
  EXPECT_EQ(disk.hostPath("C:\\runtime\\new\\A.txt"), folder.path("Runtime/new/A.txt"));
}

TEST_F(DiskTest, FindsNamesWithLettersOfOtherTongues) {
  folder.write("Körper/Größe.CR2", "x");
  EXPECT_EQ(read("C:\\KÖRPER\\größe.cr2"), "x");
  EXPECT_EQ(read("C:\\k\xF6rper\\gr\xF6\xDF"
                 "e.cr2"),
            "x")
      << "as a figure file spells it";
  EXPECT_EQ(disk.matching("C:\\körper\\gr?ße.*"), std::vector<std::string>{"Größe.CR2"});
}

TEST_F(DiskTest, AnExactNameGoesBeforeOneThatDiffersInCase) {
  folder.write("B.txt", "1");
  folder.write("b.TXT", "2");
  folder.write("b.txt", "3");
  EXPECT_EQ(read("C:\\b.txt"), "3");
  EXPECT_EQ(read("C:\\b.TXT"), "2");
  EXPECT_EQ(read("C:\\B.TXT"), "1");  // the first in the order of names
}

TEST_F(DiskTest, AFileIsTheSameByAnyOfItsNames) {
  folder.write("a/f", "x");
  folder.write("g", "x");
  folder.makeLink("link", folder.path("a"));
  EXPECT_TRUE(disk.isSameFile("C:\\a\\f", "C:\\A\\F"));
  EXPECT_TRUE(disk.isSameFile("C:\\link\\f", "C:\\a\\f"));
  EXPECT_FALSE(disk.isSameFile("C:\\a\\f", "C:\\g"));
  EXPECT_FALSE(disk.isSameFile("C:\\missing", "C:\\missing"));
  EXPECT_FALSE(disk.isSameFile("", "Q:\\f"));
}

TEST_F(DiskTest, DotsAndDoubledBackslashesCountForNothing) {
  folder.write("a/f", "x");
  for (const char* path : {"C:\\a\\.\\f", "C:\\\\a\\\\f", "C:\\b\\..\\a\\f", "C:/a/f",
                           "C:\\..\\..\\a\\f", "C:\\a\\b\\c\\..\\..\\f"}) {
    EXPECT_EQ(read(path), "x") << path;
  }
}

TEST_F(DiskTest, NothingClimbsOutOfADrive) {
  disk.mount('D', folder.path("inner"));
  folder.write("f", "outer");
  folder.write("inner/f", "inner");
  EXPECT_EQ(read("D:\\..\\f"), "inner");
  EXPECT_EQ(read("D:\\x\\..\\..\\..\\f"), "inner");
  disk.changeFolder("D:\\");
  EXPECT_EQ(read("..\\f"), "inner");
}

TEST_F(DiskTest, DrivesHaveLettersInAnyCase) {
  disk.mount('q', folder.path() + "/");
  folder.write("f", "x");
  EXPECT_TRUE(disk.hasDrive('Q'));
  EXPECT_TRUE(disk.hasDrive('q'));
  EXPECT_FALSE(disk.hasDrive('R'));
  EXPECT_EQ(read("q:\\f"), "x");
  EXPECT_EQ(disk.hostPath("Q:\\f"), folder.path("f"));
  EXPECT_EQ(disk.hostPath("Q:\\"), folder.path());
}

TEST_F(DiskTest, RelativePathsBeginAtTheCurrentFolder) {
  folder.write("a/b/f", "in b");
  folder.write("a/f", "in a");
  folder.write("f", "in root");
  EXPECT_EQ(read("f"), "in root");
  disk.changeFolder("C:\\a\\b");
  EXPECT_EQ(read("f"), "in b");
  EXPECT_EQ(read("C:f"), "in b");
  EXPECT_EQ(read("..\\f"), "in a");
  EXPECT_EQ(read("\\f"), "in root");
  EXPECT_EQ(read("C:\\f"), "in root");
}

TEST_F(DiskTest, APathOnAnotherDriveBeginsAtItsRoot) {
  disk.mount('D', folder.path("d"));
  folder.write("d/f", "x");
  folder.makeFolder("a");
  disk.changeFolder("C:\\a");
  EXPECT_EQ(read("D:f"), "x");
}

TEST_F(DiskTest, TheCurrentFolderReadsAsItWasGiven) {
  folder.makeFolder("Work/Figures.old");
  EXPECT_EQ(disk.currentFolder(), "C:\\");
  disk.changeFolder("c:\\WORK");
  EXPECT_EQ(disk.currentFolder(), "c:\\WORK");
  disk.changeFolder("figures.OLD");
  EXPECT_EQ(disk.currentFolder(), "c:\\WORK\\figures.OLD");
  disk.changeFolder("..");
  EXPECT_EQ(disk.currentFolder(), "c:\\WORK");
  disk.changeFolder("\\");
  EXPECT_EQ(disk.currentFolder(), "c:\\");
  disk.changeFolder("C:\\\\Work\\\\Figures.old\\");
  EXPECT_EQ(disk.currentFolder(), "C:\\Work\\Figures.old");
  disk.changeFolder("C:\\");
  EXPECT_EQ(disk.currentFolder(), "C:\\");
}

TEST_F(DiskTest, AFolderThatIsNoneLeavesTheCurrentOne) {
  folder.write("f", "x");
  folder.makeFolder("a");
  disk.changeFolder("C:\\a");
  EXPECT_EQ(errorNumber([&] { disk.changeFolder("C:\\nowhere"); }), 76);
  EXPECT_EQ(errorNumber([&] { disk.changeFolder("C:\\f"); }), 76);
  EXPECT_EQ(errorNumber([&] { disk.changeFolder("X:\\"); }), 76);
  EXPECT_EQ(errorNumber([&] { disk.changeFolder(""); }), 75);
  EXPECT_EQ(disk.currentFolder(), "C:\\a");
}

/// The error numbers of a path in every operation on a file that is to be there.
std::vector<int> errorsOfReading(Disk& disk, const std::string& path) {
  return {errorNumber([&] { disk.openForReading(path); }), errorNumber([&] { disk.remove(path); }),
          errorNumber([&] { disk.size(path); }),
          errorNumber([&] { disk.replace(path, "C:\\there"); })};
}
std::vector<int> errorsOfWriting(Disk& disk, const std::string& path) {
  return {errorNumber([&] { disk.openForWriting(path); }),
          errorNumber([&] { disk.openForAppending(path); }),
          errorNumber([&] { disk.openForUpdating(path); }),
          errorNumber([&] { disk.replace("C:\\there", path); })};
}

TEST_F(DiskTest, AMissingFileIs53AndAMissingFolder76) {
  folder.write("there", "x");
  const std::vector<int> missingFile(4, 53);
  const std::vector<int> missingFolder(4, 76);
  EXPECT_EQ(errorsOfReading(disk, "C:\\missing"), missingFile);
  for (const char* path : {"C:\\missing\\f", "C:\\there\\f", "X:\\f", "\\\\server\\share\\f",
                           "//server/share/f", "\\/server\\f"}) {
    EXPECT_EQ(errorsOfReading(disk, path), missingFolder) << path;
    EXPECT_EQ(errorsOfWriting(disk, path), missingFolder) << path;
    EXPECT_EQ(errorNumber([&] { disk.rename("C:\\there", path); }), 76) << path;
    EXPECT_EQ(errorNumber([&] { disk.makeFolder(path); }), 76) << path;
    EXPECT_FALSE(disk.exists(path)) << path;
    EXPECT_FALSE(disk.folderExists(path)) << path;
  }
  EXPECT_EQ(errorNumber([&] { disk.isReadOnly("C:\\missing"); }), 53);
  EXPECT_EQ(errorNumber([&] { disk.setReadOnly("C:\\missing", true); }), 53);
  EXPECT_EQ(errorNumber([&] { disk.rename("C:\\missing", "C:\\other"); }), 53);
  EXPECT_EQ(errorNumber([&] { disk.rename("C:\\missing\\f", "C:\\other"); }), 76);
  EXPECT_EQ(folder.files(), std::vector<std::string>{"there"});
}

TEST_F(DiskTest, AFolderInPlaceOfAFileIs75) {
  folder.write("there", "x");
  folder.makeFolder("a");
  const std::vector<int> refused(4, 75);
  EXPECT_EQ(errorsOfReading(disk, "C:\\a"), refused);
  EXPECT_EQ(errorsOfWriting(disk, "C:\\a"), refused);
  EXPECT_EQ(errorsOfReading(disk, "C:\\"), refused);
  EXPECT_EQ(errorNumber([&] { disk.makeFolder("C:\\A"); }), 75);
  EXPECT_FALSE(disk.exists("C:\\a"));
  EXPECT_TRUE(disk.folderExists("C:\\a"));
  EXPECT_TRUE(disk.folderExists("C:\\"));
  EXPECT_EQ(folder.read("there"), "x");
}

TEST_F(DiskTest, APathThatIsNoneIs75) {
  folder.write("there", "x");
  const std::vector<int> refused(4, 75);
  for (const std::string& path : {std::string{}, std::string("C:\\a\0b", 6)}) {
    EXPECT_EQ(errorsOfReading(disk, path), refused);
    EXPECT_EQ(errorsOfWriting(disk, path), refused);
    EXPECT_FALSE(disk.exists(path));
  }
  EXPECT_EQ(errorNumber([&] { disk.openForReading("C:\\" + std::string(300, 'a')); }), 75);
}

TEST_F(DiskTest, WhatIsNeitherFileNorFolderIs75) {
  folder.makeLink("null", "/dev/null");
  folder.makeLink("loop", "loop");
  EXPECT_EQ(errorNumber([&] { disk.openForReading("C:\\null"); }), 75);
  EXPECT_EQ(errorNumber([&] { disk.openForWriting("C:\\null"); }), 75);
  EXPECT_FALSE(disk.exists("C:\\null"));
  EXPECT_EQ(errorNumber([&] { disk.openForReading("C:\\loop"); }), 75);
  EXPECT_FALSE(disk.exists("C:\\loop"));
}

TEST_F(DiskTest, AReadOnlyFileIsNotWrittenNorDeletedButRenamed) {
  folder.write("f", "x");
  folder.write("there", "y");
  disk.setReadOnly("C:\\f", true);
  EXPECT_TRUE(disk.isReadOnly("C:\\f"));
  EXPECT_EQ(folder.mode("f") & 0222U, 0U);
  EXPECT_EQ(errorsOfWriting(disk, "C:\\f"), std::vector<int>(4, 75));
  EXPECT_EQ(errorNumber([&] { disk.remove("C:\\f"); }), 75);
  EXPECT_EQ(folder.read("f"), "x");
  disk.rename("C:\\f", "C:\\g");
  EXPECT_EQ(read("C:\\g"), "x");
  EXPECT_TRUE(disk.isReadOnly("C:\\g"));
  disk.setReadOnly("C:\\g", false);
  EXPECT_FALSE(disk.isReadOnly("C:\\g"));
  disk.remove("C:\\g");
  EXPECT_EQ(folder.files(), std::vector<std::string>{"there"});
}

TEST_F(DiskTest, AFileThatOthersMayWriteIsReadOnlyToItsOwner) {
  folder.write("f", "x");
  folder.setMode("f", 0466);
  EXPECT_TRUE(disk.isReadOnly("C:\\f"));
  disk.setReadOnly("C:\\f", false);
  EXPECT_EQ(folder.mode("f"), 0666U);
}

TEST_F(DiskTest, TheHostsErrorsHaveClassicNumbers) {
  folder.write("f", "x");
  tests::FaultyHost faulty(*host);
  Disk overFaulty(faulty);
  overFaulty.mount('C', folder.path());
  const auto openFailingWith = [&](int error) {
    // The drive's folder, the file, its opening.
    faulty.setFault(tests::Fault::error, 3, error);
    return errorNumber([&] { overFaulty.openForWriting("C:\\f"); });
  };
  EXPECT_EQ(openFailingWith(ENOENT), 53);
  EXPECT_EQ(openFailingWith(ENOTDIR), 76);
  EXPECT_EQ(openFailingWith(ENOSPC), 61);
  EXPECT_EQ(openFailingWith(EDQUOT), 61);
  EXPECT_EQ(openFailingWith(EIO), 57);
  EXPECT_EQ(openFailingWith(EACCES), 75);
  EXPECT_EQ(openFailingWith(EPERM), 75);
  EXPECT_EQ(openFailingWith(EROFS), 75);
  EXPECT_EQ(openFailingWith(EISDIR), 75);
  EXPECT_EQ(openFailingWith(EBUSY), 70);
  EXPECT_EQ(openFailingWith(ENOMEM), 7);
}

TEST_F(DiskTest, SizeCountsBytes) {
  folder.write("f", std::string_view("\0\r\n\xFF", 4));
  folder.write("empty", "");
  EXPECT_EQ(disk.size("C:\\f"), 4U);
  EXPECT_EQ(disk.size("C:\\empty"), 0U);
}

TEST_F(DiskTest, ListsTheFilesThatMatch) {
  for (const char* name : {"b.CR2", "a.cr2", "c.cr2x", "d.obj"}) folder.write(name, "");
  folder.makeFolder("e.cr2");
  folder.write("sub/f.cr2", "");
  using Names = std::vector<std::string>;
  EXPECT_EQ(disk.matching("*.cr2"), (Names{"a.cr2", "b.CR2"}));
  EXPECT_EQ(disk.matching("C:\\SUB\\*"), (Names{"f.cr2"}));
  EXPECT_EQ(disk.matching("*.*").size(), 4U);
  EXPECT_EQ(disk.matching("C:\\missing\\*"), Names{});
  EXPECT_EQ(disk.matching("C:\\"), Names{});
}

TEST_F(DiskTest, MakesFolders) {
  disk.makeFolder("C:\\A");
  EXPECT_TRUE(disk.folderExists("C:\\a"));
  disk.makeFolders("C:\\a\\b\\c");
  EXPECT_TRUE(folder.exists("A/b/c"));
  disk.makeFolders("C:\\a\\b\\c");
  folder.write("f", "x");
  EXPECT_EQ(errorNumber([&] { disk.makeFolders("C:\\f"); }), 75);
  EXPECT_NE(errorNumber([&] { disk.makeFolders("C:\\f\\g"); }), 0);
  EXPECT_EQ(folder.read("f"), "x");
}

TEST_F(DiskTest, OpensForWritingAppendingAndUpdating) {
  EXPECT_EQ(disk.openForWriting("C:\\New.txt")->write("first"), 0);
  EXPECT_EQ(folder.read("New.txt"), "first");
  EXPECT_EQ(disk.openForAppending("C:\\NEW.TXT")->write(", more"), 0);
  EXPECT_EQ(folder.read("New.txt"), "first, more");
  {
    const auto file = disk.openForUpdating("C:\\new.txt");
    std::string bytes(5, '\0');
    std::size_t got = 0;
    EXPECT_EQ(file->read(bytes.data(), bytes.size(), got), 0);
    EXPECT_EQ(bytes, "first");
    EXPECT_EQ(file->seek(1), 0);
    EXPECT_EQ(file->write("IR"), 0);
  }
  EXPECT_EQ(folder.read("New.txt"), "fIRst, more");
  EXPECT_EQ(disk.openForWriting("C:\\new.txt")->write("x"), 0);
  EXPECT_EQ(folder.read("New.txt"), "x");
  EXPECT_EQ(folder.files(), std::vector<std::string>{"New.txt"});
}

TEST_F(DiskTest, WritingThroughALinkKeepsIt) {
  folder.write("real/f", "old");
  folder.makeLink("link", "real/f");
  folder.makeLink("dangling", "real/new");
  EXPECT_EQ(disk.openForWriting("C:\\link")->write("new"), 0);
  EXPECT_EQ(disk.openForWriting("C:\\dangling")->write("made"), 0);
  EXPECT_EQ(folder.read("real/f"), "new");
  EXPECT_EQ(folder.read("real/new"), "made");
}

TEST_F(DiskTest, AHostPathBecomesThatOfTheClosestDrive) {
  disk.mount('Z', "/");
  disk.mount('D', folder.path("inner"));
  EXPECT_EQ(disk.systemPath(folder.path()), "C:\\");
  EXPECT_EQ(disk.systemPath(folder.path("a/b.cr2")), "C:\\a\\b.cr2");
  EXPECT_EQ(disk.systemPath(folder.path("inner")), "D:\\");
  EXPECT_EQ(disk.systemPath(folder.path("inner/f")), "D:\\f");
  // Not below the drive's folder, though its name begins so.
  EXPECT_EQ(disk.systemPath(folder.path("innermost/f")), "C:\\innermost\\f");
  EXPECT_EQ(disk.systemPath("/usr/x"), "Z:\\usr\\x");
  EXPECT_EQ(disk.systemPath("/"), "Z:\\");
}

TEST_F(DiskTest, AHostPathOutsideAllDrivesHasNone) {
  EXPECT_EQ(disk.systemPath("/usr/x"), std::nullopt);
  EXPECT_EQ(disk.systemPath(folder.path() + "x"), std::nullopt);
}

TEST(FileTitle, StandsBehindTheLastBackslash) {
  EXPECT_EQ(fileTitle("C:\\a\\b.cr2"), "b.cr2");
  EXPECT_EQ(fileTitle("b.cr2"), "b.cr2");
  EXPECT_EQ(fileTitle("C:\\a\\"), "");
  EXPECT_EQ(fileTitle(""), "");
}

}  // namespace

}  // namespace norvik::text
