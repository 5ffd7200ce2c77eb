#include "text/record_file.h"

#include "support/drive.h"
#include "support/error_number.h"
#include "support/random_text.h"

#include <gtest/gtest.h>

namespace norvik::text {

namespace {

using tests::errorNumber;

class RecordFileTest : public testing::Test, public tests::Drive {};

TEST_F(RecordFileTest, RecordsCountFromOneAndAreFilledWithBlanks) {
  RecordFile file(disk, "C:\\records", 4);
  EXPECT_EQ(file.count(), 0U);
  file.put(1, "a");
  file.put(2, "four");
  file.put(3, "longer");
  EXPECT_EQ(file.get(1), "a   ");
  EXPECT_EQ(file.get(2), "four");
  EXPECT_EQ(file.get(3), "long");
  EXPECT_EQ(file.count(), 3U);
  file.put(2, "");
  EXPECT_EQ(file.get(2), "    ");
  file.close();
  EXPECT_EQ(folder.read("records"), "a       long");
}

TEST_F(RecordFileTest, ARecordThatIsNotThereIs62) {
  folder.write("records", "abcdef");
  RecordFile file(disk, "C:\\records", 4);
  EXPECT_EQ(file.count(), 1U);
  EXPECT_EQ(file.get(1), "abcd");
  EXPECT_EQ(errorNumber([&] { file.get(0); }), 62);
  EXPECT_EQ(errorNumber([&] { file.get(2); }), 62);
  EXPECT_EQ(errorNumber([&] { file.get(3); }), 62);
  EXPECT_EQ(folder.read("records"), "abcdef");
}

TEST_F(RecordFileTest, RecordsInAGapAreZeroBytes) {
  RecordFile file(disk, "C:\\records", 2);
  file.put(3, "c");
  EXPECT_EQ(file.get(1), std::string_view("\0\0", 2));
  EXPECT_EQ(file.get(3), "c ");
  EXPECT_EQ(file.count(), 3U);
}

TEST_F(RecordFileTest, KeepsItsRecordsBetweenRuns) {
  RecordFile(disk, "C:\\records", 3).put(1, "one");
  RecordFile file(disk, "C:\\records", 3);
  file.put(2, "two");
  EXPECT_EQ(file.get(1), "one");
  EXPECT_EQ(file.get(2), "two");
}

TEST_F(RecordFileTest, OrderOfPutsAndGetsDoesNotMatter) {
  constexpr std::size_t kRecords = 50;
  constexpr std::size_t kLength = 20'000;  // a dozen of them fill the block
  tests::RandomText random(7);
  std::vector<std::string> expected;
  RecordFile file(disk, "C:\\records", kLength);
  for (std::size_t i = 0; i < kRecords; ++i) {
    expected.push_back(std::to_string(i) + std::string(kLength, '.'));
    file.put(i + 1, expected.back());
  }
  for (int round = 0; round < 300; ++round) {
    const std::size_t i = random.below(kRecords);
    if (random.below(2) == 0) {
      expected[i] = std::to_string(round) + std::string(kLength, '-');
      file.put(i + 1, expected[i]);
    } else {
      ASSERT_TRUE(file.get(i + 1) == expected[i].substr(0, kLength)) << round;
    }
  }
  EXPECT_EQ(file.count(), kRecords);
}

}  // namespace

}  // namespace norvik::text
