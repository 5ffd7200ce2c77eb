#include "support/faulty_host.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::tests {

namespace {

using text::HostFile;
using text::HostOpenMode;

class FaultyHostTest : public testing::Test {
 protected:
  std::unique_ptr<HostFile> open(const char* name, HostOpenMode mode) {
    std::unique_ptr<HostFile> file;
    EXPECT_EQ(host_.open(folder_.path(name), mode, file), 0);
    return file;
  }

  TemporaryFolder folder_;
  std::unique_ptr<text::HostOps> real_ = text::makePosixHost();
  FaultyHost host_{*real_};
};

TEST_F(FaultyHostTest, FailsOneOperation) {
  host_.setFault(Fault::error, 2, EACCES);
  EXPECT_EQ(host_.makeFolder(folder_.path("a")), 0);
  EXPECT_FALSE(host_.faultMet());
  EXPECT_EQ(host_.makeFolder(folder_.path("b")), EACCES);
  EXPECT_TRUE(host_.faultMet());
  EXPECT_EQ(host_.makeFolder(folder_.path("c")), 0);
  EXPECT_FALSE(folder_.exists("b"));
  EXPECT_EQ(host_.operations(), 3U);
}

TEST_F(FaultyHostTest, TellsWhichOperationsChangeSomething) {
  host_.setFault(Fault::none, 0);
  text::HostStatus status;
  std::uint64_t size = 0;
  const auto file = open("f", HostOpenMode::write);
  EXPECT_EQ(file->write("1234"), 0);
  EXPECT_EQ(file->size(size), 0);
  EXPECT_EQ(file->sync(), 0);
  EXPECT_EQ(host_.status(folder_.path("f"), status), 0);
  EXPECT_EQ(host_.remove(folder_.path("f")), 0);
  EXPECT_EQ(host_.changes(), (std::vector<std::uint64_t>{1, 2, 4, 6}));
}

TEST_F(FaultyHostTest, CarriesOutAnOperationUnheard) {
  host_.setFault(Fault::unheard, 2, EIO);
  const auto file = open("f", HostOpenMode::write);
  EXPECT_EQ(file->write("1234"), EIO);
  EXPECT_EQ(file->write("5678"), 0);
  EXPECT_EQ(folder_.read("f"), "12345678");
}

TEST_F(FaultyHostTest, FillsTheDisk) {
  host_.setFault(Fault::fullDisk, 2);
  const auto file = open("f", HostOpenMode::write);
  EXPECT_EQ(file->write("1234"), 0);
  EXPECT_EQ(file->write("5678"), ENOSPC);
  EXPECT_EQ(file->write("9"), ENOSPC);
  EXPECT_EQ(folder_.read("f"), "123456");
}

TEST_F(FaultyHostTest, AKilledProcessLeavesWhatItWrote) {
  host_.setFault(Fault::killed, 3);
  const auto file = open("f", HostOpenMode::write);
  EXPECT_EQ(file->write("1234"), 0);
  EXPECT_EQ(file->write("5678"), EIO);
  EXPECT_EQ(file->write("9"), EIO);
  EXPECT_EQ(host_.makeFolder(folder_.path("a")), EIO);
  EXPECT_EQ(folder_.read("f"), "123456");
}

TEST_F(FaultyHostTest, WithThePowerGoesWhatIsNotSynced) {
  folder_.write("appended", "old ");
  folder_.write("emptied", "old");
  host_.setFault(Fault::powerLost, 12);
  const auto appended = open("appended", HostOpenMode::append);
  const auto emptied = open("emptied", HostOpenMode::write);
  const auto made = open("made", HostOpenMode::createNew);
  for (const auto* file : {&appended, &emptied, &made}) {
    EXPECT_EQ((*file)->write("first "), 0);
  }
  // Through another handle, and from its new name on.
  EXPECT_EQ(host_.renameNew(folder_.path("made"), folder_.path("renamed")), 0);
  EXPECT_EQ(open("renamed", HostOpenMode::read)->sync(), 0);
  EXPECT_EQ(made->write("second"), 0);
  EXPECT_EQ(appended->write("second"), 0);
  EXPECT_EQ(folder_.read("renamed"), "first second");
  EXPECT_EQ(host_.operations(), 11U);
  EXPECT_EQ(made->write("third"), EIO);
  EXPECT_EQ(folder_.read("renamed"), "first ");
  EXPECT_EQ(folder_.read("appended"), "old ");
  EXPECT_EQ(folder_.read("emptied"), "");
}

TEST_F(FaultyHostTest, SeparatesFolders) {
  folder_.write("a/f", "x");
  folder_.makeFolder("b");
  host_.separateFolders();
  EXPECT_EQ(host_.renameOver(folder_.path("a/f"), folder_.path("b/f")), EXDEV);
  EXPECT_EQ(host_.renameOver(folder_.path("a/f"), folder_.path("a/g")), 0);
}

}  // namespace

}  // namespace norvik::tests
