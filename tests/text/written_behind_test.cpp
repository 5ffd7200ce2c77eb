#include "text/written_behind.h"

#include "support/drive.h"
#include "text/record_file.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::text {

namespace {

constexpr std::size_t kBlock = std::size_t{256} << 10U;

class WrittenBehindTest : public testing::Test, public tests::Drive {};

/// A file that cannot be written behind a size.
class SmallMedium final : public HostFile {
 public:
  explicit SmallMedium(std::uint64_t room) : room_(room) {}
  int read(char*, std::size_t, std::size_t& got) override {
    got = 0;
    return 0;
  }
  int write(std::string_view bytes) override {
    if (position_ + bytes.size() > room_) return ENOSPC;
    position_ += bytes.size();
    return 0;
  }
  int seek(std::uint64_t offset) override {
    position_ = offset;
    return 0;
  }
  int size(std::uint64_t& bytes) override {
    bytes = position_;
    return 0;
  }
  int sync() override { return 0; }

 private:
  std::uint64_t room_;
  std::uint64_t position_ = 0;
};

TEST_F(WrittenBehindTest, LargeFileIsWhole) {
  constexpr std::uint64_t kRecords = 60000;
  {
    RecordFile file(disk, "C:\\records", 500);
    for (std::uint64_t i = 1; i <= kRecords; ++i) file.put(i, std::to_string(i));
    EXPECT_EQ(file.count(), kRecords);
    EXPECT_EQ(file.get(20000).substr(0, 6), "20000 ");
    file.put(20000, "changed");
    file.put(kRecords + 1, "last");
    EXPECT_EQ(file.get(20000).substr(0, 8), "changed ");
    file.close();
  }
  const std::string bytes = folder.read("records");
  ASSERT_EQ(bytes.size(), (kRecords + 1) * 500);
  for (std::uint64_t i = 1; i <= kRecords; ++i) {
    const std::string wanted = i == 20000 ? "changed " : std::to_string(i) + " ";
    ASSERT_EQ(bytes.compare((i - 1) * 500, wanted.size(), wanted), 0) << i;
  }
}

TEST_F(WrittenBehindTest, ErrorComesUpLaterAndStays) {
  WrittenBehind file(std::make_unique<SmallMedium>(kWrittenAtOnce + 3 * kBlock));
  const std::string block(kBlock, 'x');
  int error = 0;
  int written = 0;
  while (error == 0 && written < 100) {
    error = file.write(block);
    ++written;
  }
  EXPECT_EQ(error, ENOSPC);
  EXPECT_EQ(file.write(block), ENOSPC);
  std::uint64_t size = 0;
  EXPECT_EQ(file.size(size), ENOSPC);
  EXPECT_EQ(file.sync(), ENOSPC);
}

TEST_F(WrittenBehindTest, LastErrorIsToldByTheSize) {
  WrittenBehind file(std::make_unique<SmallMedium>(kWrittenAtOnce));
  const std::string start(kWrittenAtOnce, 'x');
  EXPECT_EQ(file.write(start), 0);
  EXPECT_EQ(file.write(std::string(kBlock, 'y')), 0);
  std::uint64_t size = 0;
  EXPECT_EQ(file.size(size), ENOSPC);
}

}  // namespace

}  // namespace norvik::text
