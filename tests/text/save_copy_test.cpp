// Copies of finished files in the place of others, and what is left when that goes wrong.

#include "text/save_copy.h"

#include "support/drive.h"
#include "support/error_number.h"
#include "support/faulty_host.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::text {

namespace {

using tests::Fault;
using tests::FaultyHost;

/// Several blocks, with bytes of all kinds.
std::string manyBytes() {
  constexpr std::size_t kSize = std::size_t{300} * 1024 + 7;
  std::string bytes(kSize, '\0');
  for (std::size_t i = 0; i < kSize; ++i) bytes[i] = static_cast<char>(i * 31 % 251);
  return bytes;
}

class SaveCopyTest : public testing::Test, public tests::Drive {
 protected:
  const std::string bytes_ = manyBytes();
};

TEST_F(SaveCopyTest, CopiesByteForByteAndLeavesTheFile) {
  folder.write("made.obj", bytes_);
  folder.write("old.obj", "old");
  saveCopy(disk, "C:\\made.obj", "C:\\old.obj", "C:\\s.tmp");
  saveCopy(disk, "C:\\made.obj", "C:\\new.obj", "C:\\s.tmp");
  EXPECT_TRUE(folder.read("made.obj") == bytes_);
  EXPECT_TRUE(folder.read("old.obj") == bytes_);
  EXPECT_TRUE(folder.read("new.obj") == bytes_);
  EXPECT_FALSE(folder.exists("s.tmp"));
}

TEST_F(SaveCopyTest, TheFileItselfStays) {
  folder.write("made.obj", "x");
  saveCopy(disk, "C:\\made.obj", "C:\\MADE.OBJ", "C:\\s.tmp");
  EXPECT_EQ(folder.read("made.obj"), "x");
}

TEST_F(SaveCopyTest, MissingFileIs53) {
  folder.write("old.obj", "old");
  EXPECT_EQ(tests::errorNumber([&] { saveCopy(disk, "C:\\made.obj", "C:\\old.obj", "C:\\s.tmp"); }),
            53);
  EXPECT_EQ(folder.read("old.obj"), "old");
}

TEST_F(SaveCopyTest, WhateverFailsTheTargetIsOldOrNew) {
  for (const Fault fault : {Fault::error, Fault::fullDisk, Fault::powerLost}) {
    for (std::uint64_t n = 1;; ++n) {
      folder.write("made.obj", bytes_);
      folder.write("old.obj", "old");
      bool met = false;
      {
        FaultyHost faulty(*host);
        Disk failing(faulty);
        failing.mount('C', folder.path());
        faulty.setFault(fault, n, EIO);
        ignoringErrors([&] { saveCopy(failing, "C:\\made.obj", "C:\\old.obj", "C:\\s.tmp"); });
        met = faulty.faultMet();
      }
      const std::string result = folder.read("old.obj");
      EXPECT_TRUE(result == "old" || result == bytes_) << n;
      EXPECT_TRUE(folder.read("made.obj") == bytes_) << n;
      if (!met) break;
    }
  }
}

}  // namespace

}  // namespace norvik::text
