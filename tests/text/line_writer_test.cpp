#include "text/line_writer.h"

#include "support/drive.h"
#include "support/error_number.h"
#include "support/faulty_host.h"

#include <gtest/gtest.h>

#include <functional>

namespace norvik::text {

namespace {

using tests::errorNumber;

class LineWriterTest : public testing::Test, public tests::Drive {
 protected:
  /// What stands in a new file after a step.
  std::string written(const std::function<void(LineWriter&)>& step) {
    LineWriter out(disk, "C:\\out");
    step(out);
    out.close();
    return folder.read("out");
  }
};

TEST_F(LineWriterTest, EndsLinesInCrLf) {
  EXPECT_EQ(written([](LineWriter& out) {
              out.line("a");
              out.line("");
              out.line("b,", " c");
              out.bytes("d");
            }),
            "a\r\n\r\nb, c\r\nd");
  EXPECT_EQ(written([](LineWriter&) {}), "");
}

TEST_F(LineWriterTest, PassesBytesThrough) {
  const std::string_view odd("\0\xFF\x1A\t", 4);
  EXPECT_EQ(written([&](LineWriter& out) { out.line(odd); }), std::string(odd) + "\r\n");
}

TEST_F(LineWriterTest, GivesLinesOfAnyKindConventionalEnds) {
  const auto lines = [this](std::string_view text) {
    return written([&](LineWriter& out) { out.lines(text); });
  };
  EXPECT_EQ(lines(""), "");
  EXPECT_EQ(lines("a\r\nb\r\n"), "a\r\nb\r\n");
  EXPECT_EQ(lines("a\nb\rc\r\nd\n"), "a\r\nb\r\nc\r\nd\r\n");
  EXPECT_EQ(lines("a\r\nb"), "a\r\nb\r\n");
  EXPECT_EQ(lines("\n\r\r\n"), "\r\n\r\n\r\n");
  EXPECT_EQ(lines("a\r"), "a\r\n");
}

TEST_F(LineWriterTest, LeavesOutEmptyLines) {
  const auto lines = [this](std::string_view text) {
    return written([&](LineWriter& out) { out.linesThatHoldText(text); });
  };
  EXPECT_EQ(lines("a\r\nb\r\n"), "a\r\nb\r\n");
  EXPECT_EQ(lines("a\r\n\r\nb\r\n"), "a\r\nb\r\n");
  EXPECT_EQ(lines("\n\na\n\r \nb"), "a\r\n \r\nb\r\n");
  EXPECT_EQ(lines("\r\n"), "");
}

TEST_F(LineWriterTest, KeepsTheOrderOfShortAndLongTexts) {
  const std::string longer(kBlockSize + 10, 'x');
  const std::string quarter(kBlockSize / 4, 'y');
  std::string expected;
  const std::string result = written([&](LineWriter& out) {
    for (int i = 0; i < 3; ++i) {
      for (const std::string& text : {std::string("short"), longer, quarter, std::string("z")}) {
        out.line(text);
        expected += text + "\r\n";
      }
    }
    for (int i = 0; i < 50'000; ++i) {
      out.line("many lines");
      expected += "many lines\r\n";
    }
  });
  EXPECT_TRUE(result == expected);
}

TEST_F(LineWriterTest, KeepsEveryByteAroundPagesAndBlocks) {
  for (const std::size_t first : {0U, 1U, 4095U, 4096U, 4097U, 200'000U}) {
    for (const std::size_t size : {kBlockSize / 4 - 1, kBlockSize / 4, kBlockSize - first,
                                   kBlockSize - first + 1, kBlockSize, 2 * kBlockSize + 5}) {
      std::string longer(size, 'y');
      longer.back() = '!';
      const std::string result = written([&](LineWriter& out) {
        out.bytes(std::string(first, 'x'));
        out.bytes(longer);
        out.line("end");
        out.bytes(longer);
      });
      EXPECT_TRUE(result == std::string(first, 'x') + longer + "end\r\n" + longer)
          << first << ", " << size;
    }
  }
}

TEST_F(LineWriterTest, CreatesOrAppends) {
  folder.write("out", "old\r\n");
  LineWriter(disk, "C:\\OUT", LineWriter::Mode::append).line("new");
  EXPECT_EQ(folder.read("out"), "old\r\nnew\r\n");
  LineWriter(disk, "C:\\out").line("alone");
  EXPECT_EQ(folder.read("out"), "alone\r\n");
  LineWriter(disk, "C:\\made", LineWriter::Mode::append).line("x");
  EXPECT_EQ(folder.read("made"), "x\r\n");
  EXPECT_EQ(errorNumber([&] { LineWriter(disk, "C:\\no\\out"); }), 76);
}

TEST_F(LineWriterTest, LinesPrintedBeforeAnErrorStand) {
  const auto tool = [this] {
    LineWriter out(disk, "C:\\out");
    out.line("printed");
    throw FileError(ErrorNumber::inputPastEnd);
  };
  EXPECT_EQ(errorNumber(tool), 62);
  EXPECT_EQ(folder.read("out"), "printed\r\n");
}

TEST(LineWriterFaults, AFullDiskIs61AtTheLatestOnClosing) {
  const auto host = makePosixHost();
  tests::FaultyHost faulty(*host);
  const tests::TemporaryFolder folder;
  Disk disk(faulty);
  disk.mount('C', folder.path());
  for (std::uint64_t n = 1; n <= 4; ++n) {
    faulty.setFault(tests::Fault::fullDisk, n);
    EXPECT_EQ(errorNumber([&] {
                LineWriter out(disk, "C:\\out");
                for (int i = 0; i < 3; ++i) out.bytes(std::string(kBlockSize, 'x'));
                out.line("the end");
                out.close();
              }),
              61)
        << n;
  }
}

}  // namespace

}  // namespace norvik::text
