// A zip file unpacked without its folders, behind one that was unpacked with them.

#include "install/unpack.h"
#include "install/zip_file.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"
#include "support/zip_bytes.h"
#include "text/host.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace norvik::install {

namespace {

using tests::ZipPart;
using Names = std::vector<std::string>;

constexpr unsigned kLink = 0120777;
constexpr unsigned kFolder = 0040755;

class UnpackFlatTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!ZipFile::supported()) GTEST_SKIP() << "built without libarchive";
    drive_.write("outside.txt", "outside");
    drive_.makeFolder(kStaging);
  }

  Unpacking unpacking(const std::vector<ZipPart>& parts, const UnpackLimits& limits = {}) {
    drive_.write("doll.zip", tests::zipBytes(parts));
    return {workbench_.session(), "C:\\doll.zip", "C:\\Norvik\\cr2install", limits};
  }

  /// What lies in the staging folder, folders with a slash behind them.
  Names staged() const {
    EXPECT_FALSE(drive_.exists("Norvik/unpack.tmp"));
    EXPECT_EQ(drive_.read("outside.txt"), "outside");
    Names names;
    const std::filesystem::path folder = drive_.path(kStaging);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
      names.push_back(entry.path().lexically_relative(folder).string() +
                      (entry.is_directory() ? "/" : ""));
    }
    std::sort(names.begin(), names.end());
    return names;
  }
  std::string read(const std::string& name) const { return drive_.read(kStaging + "/" + name); }
  void write(const std::string& name, const std::string& bytes) const {
    drive_.write(kStaging + "/" + name, bytes);
  }

  const std::string kStaging = "Norvik/cr2install";
  const std::vector<ZipPart> kDoll{{"readme.txt", "hello"},
                                   {"Runtime/", "", kFolder},
                                   {"Runtime/empty/", "", kFolder},
                                   {"Runtime/Characters/doll.cr2", "figure"},
                                   {"Runtime\\Textures\\skin.tif", "picture"}};
  tests::TemporaryFolder drive_;
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
  tests::ScriptedWorkbench workbench_{*host_, drive_.path()};
};

TEST_F(UnpackFlatTest, FilesLieSideBySide) {
  EXPECT_EQ(unpacking(kDoll).flat(), Unpacked::done);
  EXPECT_EQ(staged(), (Names{"doll.cr2", "readme.txt", "skin.tif"}));
  EXPECT_EQ(read("doll.cr2") + read("readme.txt") + read("skin.tif"), "figurehellopicture");
}

TEST_F(UnpackFlatTest, WhatWasUnpackedWithFoldersGoes) {
  Unpacking doll = unpacking(kDoll);
  EXPECT_EQ(doll.withFolders(), Unpacked::done);
  EXPECT_EQ(staged(), (Names{"Runtime/", "Runtime/Characters/", "Runtime/Characters/doll.cr2",
                             "Runtime/Textures/", "Runtime/Textures/skin.tif", "Runtime/empty/",
                             "readme.txt"}));
  EXPECT_EQ(doll.flat(), Unpacked::done);
  EXPECT_EQ(staged(), (Names{"doll.cr2", "readme.txt", "skin.tif"}));
}

TEST_F(UnpackFlatTest, WhatStoodThereStays) {
  write("README.txt", "mine");
  write("Runtime/mine.txt", "mine, too");
  Unpacking doll = unpacking(kDoll);
  EXPECT_EQ(doll.withFolders(), Unpacked::done);
  EXPECT_EQ(doll.flat(), Unpacked::done);
  EXPECT_EQ(staged(), (Names{"README (2).txt", "Runtime/", "Runtime/mine.txt", "doll.cr2",
                             "readme.txt", "skin.tif"}));
  EXPECT_EQ(read("README (2).txt") + read("readme.txt"), "minehello");
}

TEST_F(UnpackFlatTest, WhatWasWrittenMeanwhileStays) {
  Unpacking doll = unpacking(kDoll);
  EXPECT_EQ(doll.withFolders(), Unpacked::done);
  write("Runtime/Textures/skin.tif", "painted");
  const std::filesystem::path painted = drive_.path(kStaging + "/Runtime/Textures/skin.tif");
  std::filesystem::last_write_time(
      painted, std::filesystem::last_write_time(painted) + std::chrono::seconds(5));
  write("Runtime/new.txt", "new");
  EXPECT_EQ(doll.flat(), Unpacked::done);
  EXPECT_EQ(staged(), (Names{"Runtime/", "Runtime/Textures/", "Runtime/Textures/skin.tif",
                             "Runtime/new.txt", "doll.cr2", "readme.txt", "skin.tif"}));
  EXPECT_EQ(read("Runtime/Textures/skin.tif") + read("skin.tif"), "paintedpicture");
}

TEST_F(UnpackFlatTest, NamesThatMeetAreNumbered) {
  write("skin.tif", "0");
  EXPECT_EQ(
      unpacking({{"skin.tif", "1"}, {"a/skin.tif", "2"}, {"b/SKIN.tif", "3"}, {"a/skin.tif", "4"}})
          .flat(),
      Unpacked::done);
  EXPECT_EQ(staged(),
            (Names{"SKIN (5).tif", "skin (2).tif", "skin (3).tif", "skin (4).tif", "skin.tif"}));
}

TEST_F(UnpackFlatTest, WhatIsLeftOutWithFoldersIsLeftOutWithoutThem) {
  EXPECT_EQ(unpacking({{"../evil.txt", "x"},
                       {"a/../../evil.txt", "x"},
                       {"/etc/evil.txt", "x"},
                       {"C:\\evil.txt", "x"},
                       {"a/link.txt", "../../outside.txt", kLink},
                       {"a/..", "x"},
                       {"a/" + std::string(300, 'n'), "x"},
                       {"a/good.txt", "good"}})
                .flat(),
            Unpacked::done);
  EXPECT_EQ(staged(), Names{"good.txt"});
}

TEST_F(UnpackFlatTest, TheLimitsAreTheSame) {
  UnpackLimits few;
  few.entries = 4;
  EXPECT_EQ(unpacking(kDoll, few).flat(), Unpacked::tooMuch);
  UnpackLimits small;
  small.bytes = 17;  // of 18
  EXPECT_EQ(unpacking(kDoll, small).flat(), Unpacked::tooMuch);
  UnpackLimits dense;
  dense.ratio = 100;
  dense.anyway = 0;
  EXPECT_EQ(unpacking({tests::packedPart("a/much.txt", 4000, 5)}, dense).flat(),
            Unpacked::tooDense);
  EXPECT_EQ(staged(), Names{});
}

TEST_F(UnpackFlatTest, AZipThatIsBrokenMeanwhileLeavesWhatWasUnpacked) {
  Unpacking doll = unpacking(kDoll);
  EXPECT_EQ(doll.withFolders(), Unpacked::done);
  const Names before = staged();
  drive_.write("doll.zip", "no zip any more");
  EXPECT_EQ(doll.flat(), Unpacked::noZip);
  EXPECT_EQ(staged(), before);
}

TEST_F(UnpackFlatTest, FiguresInFoldersAreFound) {
  const auto found = [this](const std::vector<ZipPart>& parts) {
    drive_.write("doll.zip", tests::zipBytes(parts));
    return figuresInFolders(workbench_.session(), "C:\\doll.zip");
  };
  EXPECT_EQ(found(kDoll), Names{"Runtime/Characters/doll.cr2"});
  EXPECT_EQ(found({{"a\\B.CR2", "x"}, {"top.cr2", "x"}, {"c/d.cr2", "x"}}),
            (Names{"a/B.CR2", "c/d.cr2"}));
  EXPECT_EQ(found({{"a/b.cr2", "x", kLink},
                   {"a/c.cr2/", "", kFolder},
                   {"../d.cr2", "x"},
                   {"a/e.cr2.txt", "x"},
                   {"./f.cr2", "x"}}),
            Names{});
  drive_.write("doll.zip", "no zip");
  EXPECT_EQ(figuresInFolders(workbench_.session(), "C:\\doll.zip"), Names{});
  EXPECT_EQ(figuresInFolders(workbench_.session(), "C:\\nowhere\\doll.zip"), Names{});
}

}  // namespace

}  // namespace norvik::install
