// What the program tells the history: its own files, and how much is kept.

#include "front/history_limits.h"
#include "front/scratch_files.h"

#include <gtest/gtest.h>

namespace norvik::front {

namespace {

TEST(ScratchFiles, AreTheToolsOwn) {
  for (const std::string_view name : kScratchFiles) {
    EXPECT_TRUE(isScratchFile(name.substr(1))) << name;
  }
  for (const char* name : {"InsertMorph.txt", "CR2-1.tmp", "cr21.DOC", "mat.PZ2", "Reorder.cr2"}) {
    EXPECT_TRUE(isScratchFile(name)) << name;
  }
}

TEST(ScratchFiles, AreNotWhatTheOperatorIsLeft) {
  for (const char* name : {"Notes.txt", "notes.TXT", "AltGeom.cr2", "NewMor.obj", "mirmorph.cr2",
                           "norah.cr2", "UV.bmp", "txt", ""}) {
    EXPECT_FALSE(isScratchFile(name)) << name;
  }
}

TEST(HistoryLimits, AreThoseOfTheSettings) {
  Settings settings;
  EXPECT_EQ(historyLimits(settings).entries, 200U);
  EXPECT_EQ(historyLimits(settings).bytes, std::uint64_t{4} << 30U);
  settings.set("History", "Entries", "7");
  settings.set("History", "Megabytes", "3");
  EXPECT_EQ(historyLimits(settings).entries, 7U);
  EXPECT_EQ(historyLimits(settings).bytes, std::uint64_t{3} << 20U);
  for (const char* odd : {"", "-1", "many", "1e3", "99999999999999999999999"}) {
    settings.set("History", "Entries", odd);
    settings.set("History", "Megabytes", odd);
    EXPECT_EQ(historyLimits(settings).entries, 200U) << odd;
    EXPECT_EQ(historyLimits(settings).bytes, std::uint64_t{4} << 30U) << odd;
  }
  settings.set("History", "Megabytes", "18446744073709551615");
  EXPECT_GT(historyLimits(settings).bytes, std::uint64_t{1} << 50U);
}

}  // namespace

}  // namespace norvik::front
