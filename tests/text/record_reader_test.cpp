#include "text/record_reader.h"

#include "support/drive.h"
#include "text/record_file.h"

#include <gtest/gtest.h>

namespace norvik::text {

namespace {

class RecordReaderTest : public testing::Test, public tests::Drive {};

TEST_F(RecordReaderTest, RecordsAreReadInAnyOrder) {
  folder.write("records", "one two four");
  RecordReader reader(disk, "C:\\records", 4);
  EXPECT_EQ(reader.get(3), "four");
  EXPECT_EQ(reader.get(1), "one ");
  EXPECT_EQ(reader.get(2), "two ");
  EXPECT_EQ(reader.get(3), "four");
}

TEST_F(RecordReaderTest, NumberWithoutARecordIsEmpty) {
  folder.write("records", "one two fo");
  RecordReader reader(disk, "C:\\records", 4);
  EXPECT_EQ(reader.get(0), "");
  EXPECT_EQ(reader.get(4), "");
  EXPECT_EQ(reader.get(1'000'000'000'000'000), "");
  EXPECT_EQ(reader.get(3), "fo");
}

TEST_F(RecordReaderTest, MissingFileIsMade) {
  RecordReader reader(disk, "C:\\records", 4);
  EXPECT_EQ(reader.get(1), "");
  EXPECT_TRUE(folder.exists("records"));
}

// More than is kept at a time, so that blocks make room for others.
TEST_F(RecordReaderTest, LargeFileIsReadHereAndThere) {
  constexpr std::uint64_t kRecords = 30000;
  constexpr std::uint64_t kStep = 7919;
  RecordFile file(disk, "C:\\records", 500);
  for (std::uint64_t i = 1; i <= kRecords; ++i) file.put(i, std::to_string(i));
  file.close();
  RecordReader reader(disk, "C:\\records", 500);
  std::uint64_t number = 1;
  for (int i = 0; i < 5000; ++i) {
    const std::string wanted = std::to_string(number);
    ASSERT_EQ(reader.get(number).substr(0, wanted.size() + 1), wanted + " ");
    number = (number + kStep) % kRecords + 1;
  }
}

}  // namespace

}  // namespace norvik::text
