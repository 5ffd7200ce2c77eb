// Zip files from strangers: whatever they say, nothing is written outside the folder that they are
// unpacked into, and nothing stays of one that holds too much.

#include "install/unpack.h"

#include "install/entry_name.h"
#include "install/zip_file.h"
#include "support/error_number.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"
#include "support/zip_bytes.h"
#include "text/host.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace norvik::install {

namespace {

using tests::deflatedPart;
using tests::packedPart;
using tests::zipBytes;
using tests::ZipPart;
using Names = std::vector<std::string>;

constexpr unsigned kLink = 0120777;
constexpr unsigned kDevice = 0020644;
constexpr unsigned kBlockDevice = 0060644;
constexpr unsigned kSocket = 0140644;
constexpr unsigned kFolder = 0040755;
constexpr unsigned kUtf8 = 0x800;

class UnpackTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!ZipFile::supported()) GTEST_SKIP() << "built without libarchive";
    drive_.write("outside.txt", "outside");
    drive_.makeFolder("Norvik/cr2install");
  }

  Unpacking unpacking(const UnpackLimits& limits = {}) {
    return {workbench_.session(), "C:\\doll.zip", "C:\\Norvik\\cr2install", limits};
  }
  Unpacked unpack(const std::string& zip, const UnpackLimits& limits = {}) {
    drive_.write("doll.zip", zip);
    const Unpacked outcome = unpacking(limits).withFolders();
    std::filesystem::remove(drive_.path("doll.zip"));
    EXPECT_FALSE(drive_.exists("Norvik/unpack.tmp"));
    EXPECT_EQ(drive_.read("outside.txt"), "outside");
    return outcome;
  }
  Unpacked unpack(const std::vector<ZipPart>& parts, const UnpackLimits& limits = {}) {
    return unpack(zipBytes(parts), limits);
  }

  /// What lies in the staging folder; all else is as it was.
  Names staged() const {
    Names names;
    const std::string folder = "Norvik/cr2install/";
    for (const std::string& file : drive_.files()) {
      if (file == "outside.txt") continue;
      EXPECT_TRUE(file.starts_with(folder)) << file;
      names.push_back(file.substr(folder.size()));
    }
    return names;
  }
  std::string read(const std::string& name) const {
    return drive_.read("Norvik/cr2install/" + name);
  }

  tests::TemporaryFolder drive_;
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
  tests::ScriptedWorkbench workbench_{*host_, drive_.path()};
};

TEST_F(UnpackTest, FilesAndFoldersAreUnpacked) {
  EXPECT_EQ(unpack({{"a.txt", "one"},
                    {"maps/", "", kFolder},
                    {"maps/skin.tif", "two"},
                    {"deep\\er\\b.txt", "three"},
                    deflatedPart("c.txt", "four", -1),
                    {"empty.txt", ""}}),
            Unpacked::done);
  EXPECT_EQ(staged(), (Names{"a.txt", "c.txt", "deep/er/b.txt", "empty.txt", "maps/skin.tif"}));
  EXPECT_EQ(read("a.txt") + read("maps/skin.tif") + read("deep/er/b.txt") + read("c.txt"),
            "onetwothreefour");
}

TEST_F(UnpackTest, NamesThatLeadElsewhereAreLeftOut) {
  const std::string outside = drive_.path("outside.txt");
  EXPECT_EQ(unpack({{outside, "x"},
                    {"/etc/x", "x"},
                    {"\\x", "x"},
                    {"//server/share/x", "x"},
                    {"C:\\outside.txt", "x"},
                    {"C:x", "x"},
                    {"a:stream", "x"},
                    {"..", "x"},
                    {"../../outside.txt", "x"},
                    {"..\\..\\outside.txt", "x"},
                    {"a/../../../outside.txt", "x"},
                    {"a/..", "x"},
                    {"../", "", kFolder},
                    {"/", "", kFolder},
                    {".", "x"},
                    {"good.txt", "good"}}),
            Unpacked::done);
  EXPECT_EQ(staged(), Names{"good.txt"});
}

TEST_F(UnpackTest, LinksDevicesAndEncryptedFilesAreLeftOut) {
  ZipPart encrypted{"secret.txt", "x"};
  encrypted.flags = 1;
  EXPECT_EQ(unpack({{"link.txt", "../../outside.txt", kLink},
                    {"folder", "../..", kLink},
                    {"folder/outside.txt", "evil"},
                    {"link.txt", "evil"},
                    {"device", "", kDevice},
                    {"disk", "", kBlockDevice},
                    {"socket", "", kSocket},
                    encrypted,
                    {"good.txt", "good"}}),
            Unpacked::done);
  EXPECT_EQ(staged(), (Names{"folder/outside.txt", "good.txt", "link.txt"}));
  EXPECT_EQ(read("link.txt"), "evil") << "a file of its own";
}

TEST_F(UnpackTest, LinksThatStandThereAreNotFollowed) {
  drive_.makeLink("Norvik/cr2install/up", "../..");
  drive_.makeLink("Norvik/cr2install/file.txt", "../../outside.txt");
  drive_.makeLink("Norvik/cr2install/new.txt", "../../new.txt");
  EXPECT_EQ(unpack({{"up/outside.txt", "evil"},
                    {"UP/more.txt", "evil"},
                    {"file.txt", "evil"},
                    {"new.txt", "evil"},
                    {"good.txt", "good"}}),
            Unpacked::done);
  EXPECT_FALSE(drive_.exists("new.txt"));
  EXPECT_FALSE(drive_.exists("more.txt"));
  EXPECT_EQ(read("good.txt"), "good");
}

TEST_F(UnpackTest, DamagedFilesAreLeftOut) {
  ZipPart changed{"changed.txt", "bytes"};
  changed.checksum = 1;
  ZipPart garbage{"garbage.txt", "\xFF\xFF\xFF\xFF not deflated"};
  garbage.method = 8;
  ZipPart unknown{"unknown.txt", "bytes"};
  unknown.method = 77;
  EXPECT_EQ(unpack({{"a.txt", "a"}, changed, garbage, unknown, {"b.txt", "b"}}), Unpacked::done);
  EXPECT_EQ(staged(), (Names{"a.txt", "b.txt"}));
}

TEST_F(UnpackTest, WhatIsNoZipLeavesNothing) {
  EXPECT_EQ(unpack(std::string{}), Unpacked::noZip);
  EXPECT_EQ(unpack("no zip file at all"), Unpacked::noZip);
  EXPECT_EQ(unpack(std::string(100000, 'P')), Unpacked::noZip);
  EXPECT_EQ(staged(), Names{});
}

TEST_F(UnpackTest, AZipWithoutEntriesLeavesNothing) {
  unpack(zipBytes({}));
  EXPECT_EQ(staged(), Names{});
}

TEST_F(UnpackTest, WhoeverIsToldOfBytesFindsTheCurrentFolderAsItWas) {
  drive_.write("doll.zip", zipBytes({{"a", "1"}, {"b", "2"}}));
  const auto before = std::filesystem::current_path();
  ZipFile zip(drive_.path("doll.zip"));
  ZipEntry entry;
  for (const bool whole : {true, false}) {
    ASSERT_TRUE(zip.next(entry));
    zip.write(drive_.path("Norvik"), entry.name, [&](std::uint64_t) {
      EXPECT_EQ(std::filesystem::current_path(), before);
      return whole;
    });
    EXPECT_EQ(std::filesystem::current_path(), before);
    EXPECT_EQ(drive_.exists("Norvik/" + entry.name), whole);
  }
}

TEST_F(UnpackTest, TooManyEntriesAreRefusedBeforeAnyIsUnpacked) {
  EXPECT_EQ(unpack({{"a", "1"}, {"b", "2"}, {"c", "3"}}, {1000, 3}), Unpacked::done);
  EXPECT_EQ(staged().size(), 3U);
  EXPECT_EQ(unpack({{"d", "1"}, {"e", "2"}, {"f", "3"}, {"../g", "4"}}, {1000, 3}),
            Unpacked::tooMuch);
  EXPECT_EQ(staged().size(), 3U);
}

TEST_F(UnpackTest, AnnouncedBytesBeyondTheLimitAreRefused) {
  EXPECT_EQ(unpack({{"a", "12345"}, {"b", "12345"}}, {10, 9}), Unpacked::done);
  EXPECT_EQ(unpack({{"c", "12345"}, {"d", "123456"}}, {10, 9}), Unpacked::tooMuch);
  EXPECT_EQ(staged(), (Names{"a", "b"}));
}

TEST_F(UnpackTest, SizesThatAddUpBeyondAllNumbersAreRefused) {
  std::vector<ZipPart> parts;
  for (int i = 0; i < 4; ++i)
    parts.push_back(deflatedPart("f" + std::to_string(i), "x", 0xFFFFFFFE));
  EXPECT_EQ(unpack(parts), Unpacked::tooMuch);
  EXPECT_EQ(staged(), Names{});
}

TEST_F(UnpackTest, BytesBeyondTheLimitThatNobodyAnnouncedAreTakenAway) {
  drive_.write("Norvik/cr2install/first.txt", "mine");
  const std::string much(300000, 'x');
  EXPECT_EQ(unpack({{"first.txt", "1"}, deflatedPart("bomb.txt", much, 5), {"last.txt", "3"}},
                   {200000, 9}),
            Unpacked::tooMuch);
  EXPECT_EQ(staged(), Names{"first.txt"});
  EXPECT_EQ(read("first.txt"), "mine");
}

constexpr std::size_t kMany = 4000;  // which is 1,032,001 bytes, in about 6,500

TEST_F(UnpackTest, AZipThatUnpacksToTooManyTimesItsSizeIsRefused) {
  const std::vector<ZipPart> parts{{"a", "1"}, packedPart("much.txt", kMany, -1)};
  const std::size_t packed = zipBytes(parts).size();
  const std::uint64_t unpacked = 1 + 1 + 258 * kMany;
  UnpackLimits limits;
  limits.ratio = unpacked / packed;  // rounded down
  limits.anyway = packed * limits.ratio;
  EXPECT_GT(limits.ratio, 150U);
  EXPECT_LT(limits.anyway, unpacked);
  EXPECT_EQ(unpack(parts, limits), Unpacked::tooDense);
  EXPECT_EQ(staged(), Names{});
  limits.anyway = unpacked - 1;
  EXPECT_EQ(unpack(parts, limits), Unpacked::tooDense);
  limits.anyway = unpacked;
  EXPECT_EQ(unpack(parts, limits), Unpacked::done) << "so much may be in any zip";
  limits.anyway = 0;
  ++limits.ratio;
  EXPECT_EQ(unpack(parts, limits), Unpacked::done);
}

TEST_F(UnpackTest, ARatioThatNobodyAnnouncedEndsTheUnpacking) {
  drive_.write("Norvik/cr2install/first.txt", "mine");
  UnpackLimits limits;
  limits.ratio = 100;
  limits.anyway = 0;
  EXPECT_EQ(
      unpack({{"first.txt", "1"}, packedPart("much.txt", kMany, 5), {"last.txt", "3"}}, limits),
      Unpacked::tooDense);
  EXPECT_EQ(staged(), Names{"first.txt"});
  EXPECT_EQ(read("first.txt"), "mine");
}

TEST_F(UnpackTest, ATextOfOneLetterIsNotMet) {
  UnpackLimits limits;
  limits.anyway = 0;
  EXPECT_EQ(unpack({packedPart("much.txt", kMany, -1)}, limits), Unpacked::done);
  EXPECT_EQ(read("much.txt"), std::string(1 + 258 * kMany, 'x'));
}

TEST_F(UnpackTest, ASmallZipOfHundredMegabytesIsRefused) {
  const auto bomb = [](std::int64_t size) {
    return std::vector<ZipPart>{{"a", "1"}, deflatedPart("bomb.txt", "x", size)};
  };
  EXPECT_EQ(unpack(bomb(100'000'000)), Unpacked::tooDense);
  EXPECT_EQ(staged(), Names{});
  EXPECT_EQ(unpack(bomb(99'999'999)), Unpacked::done) << "what it says may not even be true";
}

TEST_F(UnpackTest, NamesOfVeryManyFoldersAreLeftOut) {
  const auto deep = [](std::size_t folders) {
    std::string name;
    for (std::size_t i = 0; i < folders; ++i) name += "a/";
    return name;
  };
  EXPECT_EQ(unpack({{deep(63) + "in", "1"},
                    {deep(64) + "out", "2"},
                    {deep(65), "", kFolder},
                    {deep(30000) + "far out", "3"}}),
            Unpacked::done);
  EXPECT_EQ(staged(), Names{deep(63) + "in"});
  EXPECT_FALSE(drive_.exists("Norvik/cr2install/" + deep(64)));
}

TEST_F(UnpackTest, NoFoldersStayOfEntriesThatAreRefused) {
  const std::string tooLong(300, 'n');
  EXPECT_EQ(unpack({{"new/er/" + tooLong, "1"},
                    {"new/", "", kFolder},
                    {"new/est/" + tooLong + "/a", "2"},
                    {"other/" + tooLong + "/", "", kFolder},
                    {"file", "3"},
                    {"FILE/below", "4"},
                    {"a/b/file", "5"},
                    {"a/b/file/c/d", "6"}}),
            Unpacked::done);
  EXPECT_EQ(staged(), (Names{"a/b/file", "file"}));
  EXPECT_TRUE(drive_.exists("Norvik/cr2install/new")) << "an entry of its own";
  EXPECT_FALSE(drive_.exists("Norvik/cr2install/new/er"));
  EXPECT_FALSE(drive_.exists("Norvik/cr2install/new/est"));
  EXPECT_FALSE(drive_.exists("Norvik/cr2install/other"));
}

TEST_F(UnpackTest, WhatStandsThereKeepsItsBytesUnderANumber) {
  drive_.write("Norvik/cr2install/Skin.tif", "old");
  drive_.write("Norvik/cr2install/maps/a", "older");
  EXPECT_EQ(
      unpack({{"skin.TIF", "1"}, {"SKIN.tif", "2"}, {"Maps/A", "3"}, {".rc", "4"}, {".rc", "5"}}),
      Unpacked::done);
  EXPECT_EQ(staged(), (Names{".rc", ".rc (2)", "SKIN.tif", "Skin (2).tif", "maps/A", "maps/a (2)",
                             "skin (3).TIF"}));
  EXPECT_EQ(read("Skin (2).tif") + read("skin (3).TIF") + read("SKIN.tif"), "old12");
  EXPECT_EQ(read(".rc (2)") + read(".rc"), "45");
}

TEST_F(UnpackTest, FilesWhoseNamesDifferInCaseAloneAreAllKept) {
  drive_.write("Norvik/cr2install/SKIN.tif", "old");
  drive_.write("Norvik/cr2install/Skin.tif", "older");
  drive_.write("Norvik/cr2install/skin.tif", "oldest");
  EXPECT_EQ(unpack({{"Skin.tif", "1"}, {"skin.tif", "2"}}), Unpacked::done);
  EXPECT_EQ(staged(),
            (Names{"SKIN (2).tif", "Skin (3).tif", "Skin (5).tif", "skin (4).tif", "skin.tif"}));
  EXPECT_EQ(read("SKIN (2).tif") + read("Skin (3).tif") + read("skin (4).tif"), "oldolderoldest");
  EXPECT_EQ(read("Skin (5).tif") + read("skin.tif"), "12");
}

TEST_F(UnpackTest, AFileInTheWayOfAFolderStays) {
  drive_.write("Norvik/cr2install/maps", "a file");
  drive_.makeFolder("Norvik/cr2install/folder");
  EXPECT_EQ(unpack({{"maps/a.tif", "1"}, {"maps/", "", kFolder}, {"folder", "2"}, {"b", "3"}}),
            Unpacked::done);
  EXPECT_EQ(staged(), (Names{"b", "maps"}));
  EXPECT_EQ(read("maps"), "a file");
}

TEST_F(UnpackTest, NamesAreTakenAsTheyAre) {
  ZipPart marked{"K\xC3\xB6rper.tif", "1"};
  marked.flags = kUtf8;
  EXPECT_EQ(unpack({marked,
                    {"M\xE4"
                     "dchen.tif",
                     "2"},
                    {std::string(300, 'n') + ".tif", "3"}}),
            Unpacked::done);
  EXPECT_EQ(staged(), (Names{"K\xC3\xB6rper.tif",
                             "M\xE4"
                             "dchen.tif"}));
}

TEST_F(UnpackTest, AMissingFolderIsMade) {
  std::filesystem::remove(drive_.path("Norvik/cr2install"));
  EXPECT_EQ(unpack({{"a", "1"}}), Unpacked::done);
  EXPECT_EQ(staged(), Names{"a"});
}

TEST_F(UnpackTest, AMissingZipIsNoZip) {
  EXPECT_EQ(tests::errorNumber([&] { EXPECT_EQ(unpacking().withFolders(), Unpacked::noZip); }), 0);
}

TEST_F(UnpackTest, WhatARunLeftIsTakenAwayByTheNext) {
  drive_.write("Norvik/unpack.tmp/7", "left");
  drive_.makeLink("Norvik/unpack.tmp/0", "../../outside.txt");
  EXPECT_EQ(unpack({{"a", "1"}}), Unpacked::done);
  EXPECT_EQ(staged(), Names{"a"});
}

TEST_F(UnpackTest, AZipCutOffAnywhereUnpacksNothing) {
  const std::string zip = zipBytes({{"a.txt", "one"}, deflatedPart("b.txt", "two", -1)});
  for (std::size_t size = 0; size < zip.size(); ++size) {
    EXPECT_EQ(unpack(zip.substr(0, size)), Unpacked::noZip) << size;
    EXPECT_EQ(staged(), Names{}) << size;
  }
}

TEST_F(UnpackTest, AZipWithAnyByteChangedStaysInItsFolder) {
  const std::string zip =
      zipBytes({{"a.txt", "one"}, {"ab/c", "x", kLink}, deflatedPart("b.txt", "two", -1)});
  for (std::size_t at = 0; at < zip.size(); ++at) {
    std::string changed = zip;
    changed[at] = std::string_view("\0./\xFF", 4)[at % 4];
    unpack(changed);
    staged();  // which looks at all that lies elsewhere
  }
}

TEST_F(UnpackTest, ThousandsOfFilesOfOneNameTakeNoTime) {
  constexpr std::size_t kFiles = 1000;
  EXPECT_EQ(unpack(std::vector<ZipPart>(kFiles, {"same.txt", "x"})), Unpacked::done);
  EXPECT_EQ(staged().size(), kFiles);
}

TEST(EntryName, TheNumberStandsInFrontOfTheEnding) {
  EXPECT_EQ(numberedName("skin.tif", 2), "skin (2).tif");
  EXPECT_EQ(numberedName("a.b.c", 13), "a.b (13).c");
  EXPECT_EQ(numberedName("readme", 2), "readme (2)");
  EXPECT_EQ(numberedName(".rc", 2), ".rc (2)");
}

}  // namespace

}  // namespace norvik::install
