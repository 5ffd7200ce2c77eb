// What an error of the file layer says it is about.

#include "support/drive.h"
#include "text/line_writer.h"
#include "text/record_file.h"
#include "text/rewrite_pass.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

namespace norvik::text {

namespace {

struct Blame {
  ErrorNumber number;
  std::string path;
  FileAct act;
  bool operator==(const Blame&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Blame& blame) {
  return out << static_cast<int>(blame.number) << " on '" << blame.path << "', act "
             << static_cast<int>(blame.act);
}

class FileErrorTest : public testing::Test, public tests::Drive {
 protected:
  static Blame blameOf(const std::function<void()>& step) {
    try {
      step();
    } catch (const FileError& error) {
      return {error.number(), error.path(), error.act()};
    }
    ADD_FAILURE() << "no error";
    return {};
  }
};

TEST_F(FileErrorTest, NamesWhatIsNotThere) {
  const std::string gone = "C:\\gone.txt";
  const auto lost = [&](FileAct act) { return Blame{ErrorNumber::fileNotFound, gone, act}; };
  EXPECT_EQ(blameOf([&] { disk.openForReading(gone); }), lost(FileAct::reading));
  EXPECT_EQ(blameOf([&] { disk.remove(gone); }), lost(FileAct::deleting));
  EXPECT_EQ(blameOf([&] { disk.rename(gone, "C:\\new.txt"); }), lost(FileAct::moving));
  EXPECT_EQ(blameOf([&] { disk.isReadOnly(gone); }), lost(FileAct::lookingFor));
  EXPECT_EQ(blameOf([&] { disk.setReadOnly(gone, true); }), lost(FileAct::changingAttribute));
}

TEST_F(FileErrorTest, NamesTheFileInTheWayOfAMove) {
  folder.write("a.txt", "a");
  folder.write("b.txt", "b");
  EXPECT_EQ(blameOf([&] { disk.rename("C:\\a.txt", "C:\\b.txt"); }),
            (Blame{ErrorNumber::fileAlreadyExists, "C:\\b.txt", FileAct::moving}));
  EXPECT_EQ(blameOf([&] { disk.replace("C:\\a.txt", "C:\\none\\b.txt"); }),
            (Blame{ErrorNumber::pathNotFound, "C:\\none\\b.txt", FileAct::replacing}));
  EXPECT_EQ(blameOf([&] { disk.replace("C:\\gone.txt", "C:\\b.txt"); }),
            (Blame{ErrorNumber::fileNotFound, "C:\\gone.txt", FileAct::replacing}));
}

TEST_F(FileErrorTest, NamesTheFileThatIsReadPastItsEnd) {
  folder.write("f", "a line\n");
  LineReader in(disk, "C:\\f");
  in.line();
  const Blame pastEnd{ErrorNumber::inputPastEnd, "C:\\f", FileAct::reading};
  EXPECT_EQ(blameOf([&] { in.line(); }), pastEnd);
  EXPECT_EQ(blameOf([&] { in.field(); }), pastEnd);
  RecordFile records(disk, "C:\\f", 4);
  EXPECT_EQ(blameOf([&] { records.get(0); }), pastEnd);
  EXPECT_EQ(blameOf([&] { records.get(3); }), pastEnd);
}

TEST_F(FileErrorTest, NamesTheScratchFileThatIsTheFigure) {
  folder.write("f", "a line\n");
  EXPECT_EQ(blameOf([&] { RewritePass(disk, "C:\\F", "C:\\f"); }),
            (Blame{ErrorNumber::fileAlreadyOpen, "C:\\f", FileAct::writing}));
}

TEST_F(FileErrorTest, NamesAFileInFullWhateverBecomesOfTheCurrentFolder) {
  folder.write("figures/f", "");
  disk.changeFolder("C:\\figures");
  LineReader in(disk, "f");
  disk.changeFolder("C:\\");
  EXPECT_EQ(blameOf([&] { in.line(); }).path, "C:\\figures\\f");
}

TEST_F(FileErrorTest, SaysNoFileWhereNoneIsToBlame) {
  const FileError error(ErrorNumber::overflow);
  EXPECT_EQ(error.path(), "");
  EXPECT_EQ(error.act(), FileAct::unknown);
  EXPECT_EQ(blameOf([&] { disk.openForReading(""); }).path, "");
}

TEST_F(FileErrorTest, APathIsCompletedByTheCurrentFolder) {
  folder.write("figures/f", "");
  EXPECT_EQ(disk.inFull("f"), "C:\\f");
  disk.changeFolder("C:\\figures");
  EXPECT_EQ(disk.inFull("f"), "C:\\figures\\f");
  EXPECT_EQ(disk.inFull("\\f"), "C:\\f");
  EXPECT_EQ(disk.inFull("D:\\f"), "D:\\f");
  EXPECT_EQ(disk.inFull("\\\\server\\share\\f"), "\\\\server\\share\\f");
  EXPECT_EQ(disk.inFull(" C:\\f"), " C:\\f");
  EXPECT_EQ(disk.inFull(""), "");
}

}  // namespace
}  // namespace norvik::text
