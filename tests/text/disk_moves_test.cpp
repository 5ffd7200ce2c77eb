// How files take each other's names, and what is left when that goes wrong.

#include "support/drive.h"
#include "support/error_number.h"
#include "support/faulty_host.h"
#include "text/disk.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace norvik::text {

namespace {

using tests::errorNumber;
using tests::Fault;
using tests::FaultyHost;
using tests::TemporaryFolder;
using Names = std::vector<std::string>;

class DiskMovesTest : public testing::Test, public tests::Drive {
 protected:
  HostStatus status(const char* name) {
    HostStatus status;
    EXPECT_EQ(host->status(folder.path(name), status), 0);
    return status;
  }
  std::string linkOf(const char* name) {
    std::string target;
    EXPECT_EQ(host->readLink(folder.path(name), target), 0) << name << " is no link";
    return target;
  }
};

TEST_F(DiskMovesTest, RenameGivesAFreeName) {
  folder.write("f", "x");
  folder.setMode("f", 0640);
  disk.rename("C:\\F", "C:\\New.txt");
  EXPECT_EQ(folder.files(), Names{"New.txt"});
  EXPECT_EQ(folder.read("New.txt"), "x");
  EXPECT_EQ(folder.mode("New.txt"), 0640U);
}

TEST_F(DiskMovesTest, RenameOntoATakenNameIs58) {
  folder.write("f", "x");
  folder.write("G", "y");
  folder.makeFolder("a");
  EXPECT_EQ(errorNumber([&] { disk.rename("C:\\f", "C:\\G"); }), 58);
  EXPECT_EQ(errorNumber([&] { disk.rename("C:\\f", "C:\\g"); }), 58);
  EXPECT_EQ(errorNumber([&] { disk.rename("C:\\f", "C:\\f"); }), 58);
  EXPECT_EQ(errorNumber([&] { disk.rename("C:\\f", "C:\\a"); }), 58);
  EXPECT_EQ(folder.read("f"), "x");
  EXPECT_EQ(folder.read("G"), "y");
}

TEST_F(DiskMovesTest, RenameMovesAcrossFoldersAndDrives) {
  disk.mount('D', folder.path("d"));
  folder.write("a/f", "x");
  folder.makeFolder("d");
  disk.rename("C:\\a\\f", "C:\\g");
  disk.rename("C:\\g", "D:\\h");
  EXPECT_EQ(folder.files(), Names{"d/h"});
  EXPECT_EQ(folder.read("d/h"), "x");
}

TEST_F(DiskMovesTest, RenameMovesAFolder) {
  folder.write("a/f", "x");
  disk.rename("C:\\a", "C:\\b");
  EXPECT_EQ(folder.files(), Names{"b/f"});
}

TEST_F(DiskMovesTest, RenameFollowsLinks) {
  folder.write("real/f", "x");
  folder.makeLink("link", "real/f");
  disk.rename("C:\\link", "C:\\backup");
  EXPECT_EQ(folder.read("backup"), "x");
  EXPECT_EQ(linkOf("link"), "real/f");
  // A new file arrives where the link, which dangles now, points to.
  folder.write("new", "y");
  disk.rename("C:\\new", "C:\\link");
  EXPECT_EQ(linkOf("link"), "real/f");
  EXPECT_EQ(folder.read("real/f"), "y");
  EXPECT_EQ(folder.files(), (Names{"backup", "link", "real/f"}));
}

TEST_F(DiskMovesTest, ReplacePutsTheScratchFileInTheTargetsPlace) {
  folder.write("Target.CR2", "old");
  folder.write("scratch", "new");
  disk.replace("C:\\scratch", "C:\\target.cr2");
  // As after a deletion and a rename, the name is spelled as it was given.
  EXPECT_EQ(folder.files(), Names{"target.cr2"});
  EXPECT_EQ(folder.read("target.cr2"), "new");
}

TEST_F(DiskMovesTest, AReplacedFileKeepsItsLettersFromASpellingInSingleBytes) {
  folder.write("Größe.cr2", "old");
  folder.write("scratch", "new");
  disk.replace("C:\\scratch",
               "C:\\gr\xF6\xDF"
               "e.CR2");
  EXPECT_EQ(folder.files(), std::vector<std::string>{"Größe.cr2"});
  EXPECT_EQ(folder.read("Größe.cr2"), "new");
  folder.write("scratch", "newer");
  disk.replace("C:\\scratch", "C:\\GRÖßE.cr2");
  EXPECT_EQ(folder.files(), std::vector<std::string>{"GRÖßE.cr2"});
}

TEST_F(DiskMovesTest, ReplaceDoesNotRenameWhatALinkPointsTo) {
  folder.write("real.cr2", "old");
  folder.makeLink("Link.cr2", folder.path("real.cr2"));
  folder.write("scratch", "new");
  disk.replace("C:\\scratch", "C:\\link.cr2");
  EXPECT_EQ(folder.files(), (Names{"Link.cr2", "real.cr2"}));
  EXPECT_EQ(folder.read("real.cr2"), "new");
}

TEST_F(DiskMovesTest, ReplaceMakesAMissingTarget) {
  folder.write("scratch", "new");
  disk.replace("C:\\scratch", "C:\\target.cr2");
  EXPECT_EQ(folder.files(), Names{"target.cr2"});
  EXPECT_EQ(folder.read("target.cr2"), "new");
}

TEST_F(DiskMovesTest, ReplaceKeepsTheMode) {
  for (const unsigned mode : {0600U, 0664U, 0755U, 0200U}) {
    folder.write("f", "old");
    folder.setMode("f", mode);
    folder.write("scratch", "new");
    folder.setMode("scratch", 0644);
    disk.replace("C:\\scratch", "C:\\f");
    EXPECT_EQ(folder.mode("f"), mode);
    EXPECT_EQ(folder.read("f"), "new");
  }
}

TEST_F(DiskMovesTest, ReplaceKeepsTheOwnerWhereTheSystemAllowsIt) {
  if (::geteuid() != 0) GTEST_SKIP() << "only the superuser may give files away";
  folder.write("f", "old");
  ASSERT_EQ(::chown(folder.path("f").c_str(), 1234, 2345), 0);
  folder.write("scratch", "new");
  disk.replace("C:\\scratch", "C:\\f");
  EXPECT_EQ(status("f").owner, 1234U);
  EXPECT_EQ(status("f").group, 2345U);
  EXPECT_EQ(folder.read("f"), "new");
}

TEST_F(DiskMovesTest, ReplaceWritesWhereLinksPoint) {
  folder.write("real/f", "old");
  folder.makeLink("real/inner", "f");
  folder.makeLink("link", folder.path("real/inner"));
  folder.write("scratch", "new");
  disk.replace("C:\\scratch", "C:\\link");
  EXPECT_EQ(linkOf("link"), folder.path("real/inner"));
  EXPECT_EQ(linkOf("real/inner"), "f");
  EXPECT_EQ(folder.read("real/f"), "new");
  EXPECT_EQ(folder.files(), (Names{"link", "real/f", "real/inner"}));
}

TEST_F(DiskMovesTest, ReplaceMakesTheFileOfADanglingLink) {
  folder.makeFolder("real");
  folder.makeLink("link", "real/f");
  folder.write("scratch", "new");
  disk.replace("C:\\scratch", "C:\\link");
  EXPECT_EQ(linkOf("link"), "real/f");
  EXPECT_EQ(folder.read("real/f"), "new");
}

TEST_F(DiskMovesTest, ReplaceByItselfChangesNothing) {
  folder.write("f", "x");
  folder.makeLink("link", "f");
  disk.replace("C:\\f", "C:\\F");
  disk.replace("C:\\f", "C:\\link");
  EXPECT_EQ(folder.read("f"), "x");
  EXPECT_EQ(linkOf("link"), "f");
}

TEST_F(DiskMovesTest, ReplaceOfAReadOnlyFileChangesNothing) {
  folder.write("f", "old");
  folder.setMode("f", 0444);
  folder.write("scratch", "new");
  EXPECT_EQ(errorNumber([&] { disk.replace("C:\\scratch", "C:\\f"); }), 75);
  EXPECT_EQ(folder.read("f"), "old");
  EXPECT_EQ(folder.read("scratch"), "new");
}

TEST_F(DiskMovesTest, AdoptIdentityTakesTheModeAndNotTheReadOnlyAttribute) {
  folder.write("f", "x");
  folder.write("model", "y");
  folder.setMode("model", 0440);
  disk.adoptIdentity("C:\\f", "C:\\model");
  EXPECT_EQ(folder.mode("f"), 0640U);
  disk.adoptIdentity("C:\\f", "C:\\missing");
  disk.adoptIdentity("C:\\missing", "C:\\f");
  EXPECT_EQ(folder.mode("f"), 0640U);
}

/// A folder on another file system than the drive's; null if the machine has none.
std::unique_ptr<TemporaryFolder> folderElsewhere(const TemporaryFolder& here) {
  struct stat mine {};
  struct stat other {};
  const bool found = ::stat(here.path().c_str(), &mine) == 0 && ::stat("/dev/shm", &other) == 0 &&
                     mine.st_dev != other.st_dev && ::access("/dev/shm", W_OK) == 0;
  return found ? std::make_unique<TemporaryFolder>("/dev/shm") : nullptr;
}

TEST_F(DiskMovesTest, MovesAcrossFileSystems) {
  const auto elsewhere = folderElsewhere(folder);
  if (elsewhere == nullptr) GTEST_SKIP() << "one file system";
  disk.mount('D', elsewhere->path());
  const std::string content = std::string(3 * kBlockSize, 'x') + "end";
  folder.write("f", content);
  folder.setMode("f", 0640);
  disk.rename("C:\\f", "D:\\f");
  EXPECT_FALSE(folder.exists("f"));
  EXPECT_EQ(elsewhere->read("f"), content);
  EXPECT_EQ(elsewhere->mode("f"), 0640U);

  folder.write("f", "old");
  folder.setMode("f", 0604);
  disk.replace("D:\\f", "C:\\f");
  EXPECT_EQ(folder.read("f"), content);
  EXPECT_EQ(folder.mode("f"), 0604U);
  EXPECT_EQ(folder.files(), Names{"f"});
  EXPECT_EQ(elsewhere->files(), Names{});
}

TEST_F(DiskMovesTest, AFolderStaysOnItsFileSystem) {
  folder.write("a/inner/f", "x");
  folder.makeFolder("b");
  FaultyHost separate(*host);
  separate.separateFolders();
  Disk overSeparate(separate);
  overSeparate.mount('C', folder.path());
  EXPECT_EQ(errorNumber([&] { overSeparate.rename("C:\\a\\inner", "C:\\b\\inner"); }), 75);
  EXPECT_EQ(folder.files(), Names{"a/inner/f"});
}

/// Runs a step with each operation failing in turn, in each of the ways, and looks at what is left.
/// `check` is told whether the step ended without an error.
void failEverywhere(bool acrossFileSystems,
                    const std::function<void(const TemporaryFolder&)>& prepare,
                    const std::function<void(Disk&)>& step,
                    const std::function<void(const TemporaryFolder&, bool done)>& check) {
  struct Way {
    Fault fault;
    int error;
  };
  const auto host = makePosixHost();
  for (const Way way : {Way{Fault::error, EIO}, Way{Fault::error, ENOSPC},
                        Way{Fault::error, EACCES}, Way{Fault::unheard, EIO},
                        Way{Fault::fullDisk, 0}, Way{Fault::killed, 0}, Way{Fault::powerLost, 0}}) {
    bool met = true;
    for (std::uint64_t n = 1; met; ++n) {
      SCOPED_TRACE("fault " + std::to_string(static_cast<int>(way.fault)) + ", error " +
                   std::to_string(way.error) + ", at " + std::to_string(n));
      const TemporaryFolder folder;
      prepare(folder);
      FaultyHost faulty(*host);
      if (acrossFileSystems) faulty.separateFolders();
      Disk disk(faulty);
      disk.mount('C', folder.path());
      faulty.setFault(way.fault, n, way.error);
      const bool done = errorNumber([&] { step(disk); }) == 0;
      met = faulty.faultMet();
      // Only who knows what happened can report.
      if (!met || way.fault == Fault::error || way.fault == Fault::fullDisk) check(folder, done);
      const auto files = folder.files();
      EXPECT_FALSE(files.empty());
      for (const std::string& name : files) {
        const std::string text = folder.read(name);
        const bool whole = text == "old text" || text == "new text";
        EXPECT_TRUE(whole || name.find(".norvik-") != std::string::npos) << name << ": " << text;
      }
      if (testing::Test::HasFailure()) return;
    }
  }
}

void replaceEverywhere(bool acrossFileSystems) {
  failEverywhere(
      acrossFileSystems,
      [](const TemporaryFolder& folder) {
        folder.write("a/scratch", "new text");
        folder.write("b/target", "old text");
      },
      [](Disk& disk) { disk.replace("C:\\a\\scratch", "C:\\b\\target"); },
      [](const TemporaryFolder& folder, bool done) {
        // An error says that nothing has changed; without one the new file is there.
        EXPECT_EQ(folder.read("b/target"), done ? "new text" : "old text");
        EXPECT_TRUE(done || folder.read("a/scratch") == "new text");
      });
}

TEST(DiskFaults, ReplaceDoesAllOrNothing) {
  replaceEverywhere(false);
}

TEST(DiskFaults, ReplaceAcrossFileSystemsDoesAllOrNothing) {
  replaceEverywhere(true);
}

void renameEverywhere(bool acrossFileSystems) {
  failEverywhere(
      acrossFileSystems,
      [](const TemporaryFolder& folder) {
        folder.write("a/f", "old text");
        folder.makeFolder("b");
      },
      [](Disk& disk) { disk.rename("C:\\a\\f", "C:\\b\\g"); },
      [](const TemporaryFolder& folder, bool done) {
        EXPECT_EQ(folder.exists("b/g"), done);
        EXPECT_EQ(folder.exists("a/f"), !done);
      });
}

TEST(DiskFaults, RenameDoesAllOrNothing) {
  renameEverywhere(false);
}

TEST(DiskFaults, RenameAcrossFileSystemsDoesAllOrNothing) {
  renameEverywhere(true);
}

}  // namespace

}  // namespace norvik::text
