#include "text/byte_reader.h"

#include "support/drive.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

namespace norvik::text {

namespace {

class ByteReaderTest : public testing::Test, public tests::Drive {};

TEST_F(ByteReaderTest, ReadsBlocksOfAnySize) {
  folder.write("f", std::string_view("ab\0\r\n\xFF", 6));
  ByteReader in(disk, "C:\\f");
  EXPECT_EQ(in.read(2), "ab");
  EXPECT_EQ(in.read(1), std::string_view("\0", 1));
  EXPECT_EQ(in.read(200), "\r\n\xFF");
  EXPECT_EQ(in.read(1), "");
  EXPECT_EQ(in.read(1), "");
}

TEST_F(ByteReaderTest, BlocksMayStraddleAndExceedTheReadOnes) {
  std::string bytes;
  for (std::size_t i = 0; bytes.size() < 3 * kBlockSize + 11; ++i) bytes += std::to_string(i);
  folder.write("f", bytes);
  for (const std::size_t size : {std::size_t{2048}, std::size_t{100'003}, kBlockSize + 1}) {
    ByteReader in(disk, "C:\\f");
    std::string result;
    for (auto block = in.read(size); !block.empty(); block = in.read(size)) {
      const bool last = result.size() + block.size() == bytes.size();
      EXPECT_TRUE(last || block.size() == size);
      result += block;
    }
    EXPECT_TRUE(result == bytes) << size;
  }
}

TEST_F(ByteReaderTest, AMissingFileIs53AndIsNotMade) {
  EXPECT_EQ(tests::errorNumber([&] { ByteReader(disk, "C:\\f"); }), 53);
  EXPECT_FALSE(folder.exists("f"));
}

}  // namespace

}  // namespace norvik::text
