// Folders listed and removed, and files copied.

#include "support/drive.h"
#include "support/error_number.h"
#include "support/faulty_host.h"
#include "text/disk.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::text {

namespace {

using tests::errorNumber;
using Names = std::vector<std::string>;

class DiskFoldersTest : public testing::Test, public tests::Drive {};

TEST_F(DiskFoldersTest, NamesComeInOrderWithoutRegardToCase) {
  for (const char* name : {"b.txt", "C.txt", "a.txt", "B (2).txt", "A.TXT"})
    folder.write(name, "x");
  EXPECT_EQ(disk.matching("*.txt"), (Names{"A.TXT", "a.txt", "B (2).txt", "b.txt", "C.txt"}));
}

TEST_F(DiskFoldersTest, FoldersAreListed) {
  folder.makeFolder("Runtime/textures");
  folder.makeFolder("Runtime/Libraries");
  folder.write("Runtime/file", "x");
  EXPECT_EQ(disk.foldersIn("C:\\runtime"), (Names{"Libraries", "textures"}));
  EXPECT_EQ(disk.foldersIn("C:\\"), Names{"Runtime"});
  EXPECT_EQ(disk.foldersIn("C:\\Runtime\\file"), Names{});
  EXPECT_EQ(disk.foldersIn("C:\\missing"), Names{});
}

TEST_F(DiskFoldersTest, AnEmptyFolderIsRemoved) {
  folder.makeFolder("a/b");
  disk.removeFolder("C:\\A\\B");
  EXPECT_FALSE(disk.folderExists("C:\\a\\b"));
  EXPECT_TRUE(disk.folderExists("C:\\a"));
}

TEST_F(DiskFoldersTest, WhatCannotBeRemovedAsAFolderStays) {
  folder.write("a/f", "x");
  EXPECT_EQ(errorNumber([&] { disk.removeFolder("C:\\a"); }), 75);
  EXPECT_EQ(errorNumber([&] { disk.removeFolder("C:\\a\\f"); }), 76);
  EXPECT_EQ(errorNumber([&] { disk.removeFolder("C:\\missing"); }), 76);
  EXPECT_EQ(errorNumber([&] { disk.removeFolder("C:\\"); }), 75);
  EXPECT_EQ(folder.files(), Names{"a/f"});
}

TEST_F(DiskFoldersTest, ACopyHasTheBytesAndTheMode) {
  folder.write("f", "bytes");
  folder.setMode("f", 0440);
  folder.makeFolder("d");
  disk.copy("C:\\f", "C:\\d\\g");
  EXPECT_EQ(folder.read("d/g"), "bytes");
  EXPECT_EQ(folder.mode("d/g"), 0440U);
  EXPECT_EQ(folder.files(), (Names{"d/g", "f"}));
}

TEST_F(DiskFoldersTest, ACopyTakesThePlaceOfAnOlderFile) {
  folder.write("f", "bytes");
  folder.write("G", "an older one");
  disk.copy("C:\\f", "C:\\g");
  EXPECT_EQ(folder.files(), (Names{"f", "g"}));
  EXPECT_EQ(folder.read("g"), "bytes");
}

TEST_F(DiskFoldersTest, WhatCannotBeCopiedLeavesAllAsItWas) {
  folder.write("f", "bytes");
  folder.write("locked", "old");
  folder.setMode("locked", 0444);
  folder.makeFolder("d");
  folder.makeLink("link", "f");
  EXPECT_EQ(errorNumber([&] { disk.copy("C:\\f", "C:\\F"); }), 55);
  EXPECT_EQ(errorNumber([&] { disk.copy("C:\\f", "C:\\link"); }), 55);
  EXPECT_EQ(errorNumber([&] { disk.copy("C:\\f", "C:\\locked"); }), 75);
  EXPECT_EQ(errorNumber([&] { disk.copy("C:\\f", "C:\\d"); }), 75);
  EXPECT_EQ(errorNumber([&] { disk.copy("C:\\f", "C:\\missing\\g"); }), 76);
  EXPECT_EQ(errorNumber([&] { disk.copy("C:\\none", "C:\\g"); }), 53);
  EXPECT_EQ(folder.files(), (Names{"f", "link", "locked"}));
  EXPECT_EQ(folder.read("f") + folder.read("locked"), "bytesold");
}

}  // namespace

}  // namespace norvik::text
