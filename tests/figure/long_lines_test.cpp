// Lines of many megabytes, which must pass like any other.

#include "support/drive.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"
#include "text/line_reader.h"

#include <gtest/gtest.h>

namespace norvik::figure {

namespace {

constexpr std::size_t kMegabyte = 1'000'000;

class LongLinesTest : public testing::Test {
 protected:
  void open(const std::string& path) {
    if (!bench_.opening().loaded()) bench_.run("start\n");
    bench_.run("answer OK\nchoose " + path + "\nclick MenuFileOpen\n");
  }

  tests::TemporaryFolder folder_;
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
  tests::ScriptedWorkbench bench_{*host_, folder_.path()};
};

TEST(LongLines, BothReads) {
  const std::string longer(50 * kMegabyte, 'x');
  const tests::Drive drive;
  drive.folder.write("f", "a\r\n" + longer + "\r\n" + longer + ",b\r\n");
  text::LineReader in(drive.disk, "C:\\f");
  EXPECT_EQ(in.line(), "a");
  EXPECT_TRUE(in.line() == longer);
  EXPECT_TRUE(in.field() == longer);
  EXPECT_EQ(in.line(), "b");
}

TEST_F(LongLinesTest, SavingCopiesThem) {
  const std::string longer(8 * kMegabyte, 'x');
  const std::string head = longer + "\r\n\tmaterial skin\r\n";
  const std::string tail = longer + "\r\n\tpresetMaterial skin\r\n" + longer + "\r\n";
  folder_.write("a.cr2", head + "\ttextureMap old.tif\r\n" + tail);
  bench_.session().load(bench_.opening());
  bench_.opening().OpenedPath = "C:\\a.cr2";
  bench_.opening().LabelMainTex.setFore(front::kPathEdited);
  bench_.opening().TextMainTex.setText("new.tif");
  bench_.run("choose C:\\a.cr2\nclick MenuFileSave\n");
  EXPECT_TRUE(folder_.read("a.cr2") == head + "\ttextureMap new.tif\r\n" + tail);
}

TEST_F(LongLinesTest, CheckSGIConvertsThem) {
  const std::string longer(8 * kMegabyte, 'x');
  const std::string converted = "a\r\n" + longer + "\r\n";
  folder_.write("lf.mtl", "a\n" + longer + "\n");
  open("C:\\lf.mtl");
  EXPECT_TRUE(folder_.read("lf.mtl") == converted);
  folder_.write("cr.mtl", "a\r" + longer + "\r");
  open("C:\\cr.mtl");
  EXPECT_TRUE(folder_.read("cr.mtl") == converted);
}

TEST_F(LongLinesTest, SpaceChopperTakesTheirBlanks) {
  const std::string longer(8 * kMegabyte, 'x');
  folder_.write("a.cr2", "a\r\n " + longer + "\r\nb\r\n");
  open("C:\\a.cr2");
  EXPECT_TRUE(folder_.read("a.cr2") == "a\r\n" + longer + "\r\nb\r\n");
}

}  // namespace

}  // namespace norvik::figure
