#include "text/history_entry.h"

#include <gtest/gtest.h>

namespace norvik::text {

namespace {

HistoryEntry sample() {
  HistoryEntry entry;
  entry.when = "2002-03-04 05:06:07";
  entry.tool = "PictureCopyToDest";
  entry.what = Loss::deleted;
  entry.path = "C:\\odd\r\n100%\\f: g";
  entry.hostPath = "/home/odd\n100%/f: g";
  entry.file = "f: g";
  entry.size = 123456789012;
  entry.mode = 0644;
  return entry;
}

TEST(HistoryEntry, IsWrittenALineAValue) {
  EXPECT_EQ(historyText(sample()),
            "when: 2002-03-04 05:06:07\ntool: PictureCopyToDest\nwhat: deleted\n"
            "path: C:\\odd%0D%0A100%25\\f: g\nhost: /home/odd%0A100%25/f: g\nfile: f: g\n"
            "size: 123456789012\nmode: 644\nend\n");
}

TEST(HistoryEntry, ReadsBack) {
  const auto entry = parseHistoryText(historyText(sample()));
  ASSERT_TRUE(entry);
  EXPECT_EQ(historyText(*entry), historyText(sample()));
  EXPECT_EQ(entry->path, sample().path);
}

TEST(HistoryEntry, IsNoneWhereAnythingIsMissing) {
  const std::string whole = historyText(sample());
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_FALSE(parseHistoryText(whole.substr(0, size))) << size;
  }
}

TEST(HistoryEntry, StaysInItsFolder) {
  for (const char* file : {"", ".", "..", "../f", "/f", "a/b"}) {
    HistoryEntry entry = sample();
    entry.file = file;
    EXPECT_FALSE(parseHistoryText(historyText(entry))) << file;
  }
  HistoryEntry entry = sample();
  entry.hostPath = "home/f";
  EXPECT_FALSE(parseHistoryText(historyText(entry)));
}

TEST(HistoryEntry, UnknownLossesAndNumbersAreNone) {
  std::string text = historyText(sample());
  text.replace(text.find("deleted"), 7, "mislaid");
  EXPECT_FALSE(parseHistoryText(text));
  text = historyText(sample());
  text.replace(text.find("644"), 3, "6x4");
  EXPECT_FALSE(parseHistoryText(text));
}

}  // namespace

}  // namespace norvik::text
