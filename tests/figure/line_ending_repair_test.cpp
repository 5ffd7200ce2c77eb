#include "figure/line_ending_repair.h"

#include "support/drive.h"
#include "support/random_text.h"

#include <gtest/gtest.h>

namespace norvik::figure {

namespace {

constexpr std::size_t kBlock = 2048;

class LineEndingRepairTest : public testing::Test, public tests::Drive {
 protected:
  std::string repaired(const std::string& text) {
    folder.write("f", text);
    text::ByteReader source(disk, "C:\\f");
    text::LineWriter scratch(disk, "C:\\scratch");
    LineEndingRepair(source, scratch);
    scratch.close();
    return folder.read("scratch");
  }
};

TEST_F(LineEndingRepairTest, LinesOfLf) {
  EXPECT_EQ(repaired("a\nb\n"), "a\r\nb\r\n");
  EXPECT_EQ(repaired("\ta \n b\n"), "\ta \r\n b\r\n");
}

TEST_F(LineEndingRepairTest, OfTwoLfInARowOneIsLost) {
  EXPECT_EQ(repaired("a\n\nb\n"), "a\r\nb\r\n");
  EXPECT_EQ(repaired("a\n\n\nb\n"), "a\r\n\r\nb\r\n");
  EXPECT_EQ(repaired("a\n\n\n\nb\n"), "a\r\n\r\nb\r\n");
  EXPECT_EQ(repaired("\n\na\n"), "\r\na\r\n");
}

TEST_F(LineEndingRepairTest, LinesOfCr) {
  EXPECT_EQ(repaired("a\rb\r"), "a\r\nb\r\n");
  EXPECT_EQ(repaired("a\r\rb\r"), "a\r\n\r\nb\r\n");
  EXPECT_EQ(repaired("\ra\r"), "\r\na\r\n");
}

TEST_F(LineEndingRepairTest, ConventionalLinesStay) {
  EXPECT_EQ(repaired("a\r\n\r\nb\r\n"), "a\r\n\r\nb\r\n");
}

TEST_F(LineEndingRepairTest, BesideAnLfACrIsACharacter) {
  EXPECT_EQ(repaired("a\rb\nc\n"), "a\rb\r\nc\r\n");
  EXPECT_EQ(repaired("a\r\r\nb\n"), "a\r\r\nb\r\n");
  EXPECT_EQ(repaired("a\n\rb\n"), "a\r\n\rb\r\n");
  // Behind the last LF they end lines again.
  EXPECT_EQ(repaired("a\nb\rc\r"), "a\r\nb\r\nc\r\n");
}

TEST_F(LineEndingRepairTest, TextBehindTheLastLineEndIsLost) {
  EXPECT_EQ(repaired("a\nb"), "a\r\n");
  EXPECT_EQ(repaired("a\rb"), "a\r\n");
  EXPECT_EQ(repaired("a"), "");
  EXPECT_EQ(repaired(std::string(3 * kBlock, 'a')), "");
  EXPECT_EQ(repaired(""), "");
}

TEST_F(LineEndingRepairTest, ALineEndAloneInTheBufferIsLost) {
  EXPECT_EQ(repaired("\n"), "");
  EXPECT_EQ(repaired("\r"), "");
  EXPECT_EQ(repaired("a\n\n\n"), "a\r\n");
  EXPECT_EQ(repaired("a\n\r"), "a\r\n");
  EXPECT_EQ(repaired("\r\n"), "\r\n");
}

TEST_F(LineEndingRepairTest, BytesPassThrough) {
  const std::string odd("\0\xFF\x1A\"x\",", 7);
  EXPECT_EQ(repaired(odd + "\n"), odd + "\r\n");
}

TEST_F(LineEndingRepairTest, ACrLfCutByABlocksEndGivesAnEmptyLine) {
  const std::string first(kBlock - 1, 'x');
  EXPECT_EQ(repaired(first + "\r\nb\r\n"), first + "\r\n\r\nb\r\n");
  // With an LF in the same block only the CR at its end is swept, as the end of a line.
  EXPECT_EQ(repaired("a\n" + first.substr(2) + "\r\nb\r\n"),
            "a\r\n" + first.substr(2) + "\r\n\r\nb\r\n");
  // A single CR left over is kept until its LF is there.
  EXPECT_EQ(repaired(first.substr(1) + "\n\r\nb\r\n"), first.substr(1) + "\r\n\r\nb\r\n");
}

TEST_F(LineEndingRepairTest, ABlankLfLineSurvivesABlocksEnd) {
  const std::string first(kBlock - 1, 'x');
  EXPECT_EQ(repaired(first + "\n\nb\n"), first + "\r\n\r\nb\r\n");
  EXPECT_EQ(repaired(first.substr(1) + "\n\nb\n"), first.substr(1) + "\r\nb\r\n");
}

TEST_F(LineEndingRepairTest, LinesMayBeLongerThanABlock) {
  const std::string longer(5 * kBlock + 17, 'x');
  EXPECT_EQ(repaired(longer + "\n"), longer + "\r\n");
  EXPECT_EQ(repaired(longer + "\ra\r"), longer + "\r\na\r\n");
}

TEST_F(LineEndingRepairTest, CrsBeforeTheFirstBlockWithAnLfEndLines) {
  const std::string filler(kBlock, 'x');
  EXPECT_EQ(repaired("a\rb\r" + filler + "c\nd\re\n"), "a\r\nb\r\n" + filler + "c\r\nd\re\r\n");
}

/// The repair as it is told: a buffer, and lines taken off its front.
std::string plainlyRepaired(const std::string& source) {
  std::string printed;
  std::string buffer;
  const auto print = [&](std::size_t length, bool endsAtLf) {
    std::string line = buffer.substr(0, length);
    if (endsAtLf && !line.empty() && line.back() == '\r') line.pop_back();
    printed += line + "\r\n";
    buffer.erase(0, length + 1);
  };
  for (std::size_t at = 0; at < source.size(); at += kBlock) {
    buffer += source.substr(at, kBlock);
    while (buffer.size() > 1) {
      if (const auto lf = buffer.find('\n'); lf != std::string::npos) {
        print(lf, true);
        if (!buffer.empty() && buffer.front() == '\n') buffer.erase(0, 1);
        continue;
      }
      for (auto cr = buffer.find('\r'); cr != std::string::npos; cr = buffer.find('\r')) {
        print(cr, false);
      }
      break;
    }
  }
  return printed;
}

TEST_F(LineEndingRepairTest, AgreesWithThePlainRepair) {
  tests::RandomText random(8);
  for (int round = 0; round < 1500; ++round) {
    // Each text favours some kinds of line ends, so that blocks without an LF are common.
    static constexpr std::string_view kEnds[] = {"\r", "\n", "\r\n", "\n\n", "\r\r", "\n\r"};
    const std::size_t kinds = 1 + random.below(6);
    const std::size_t firstKind = random.below(6);
    std::string text;
    const std::size_t lines = random.below(12);
    for (std::size_t i = 0; i < lines; ++i) {
      const bool aboutABlock = random.below(3) == 0;
      text.append(aboutABlock ? kBlock - 6 + random.below(10) : random.below(20), 'x');
      text += kEnds[(firstKind + random.below(kinds)) % 6];
      // Now and then the block's end is right at the line's.
      if (random.below(4) == 0) {
        const std::size_t left = kBlock - text.size() % kBlock;
        text.append(left - std::min(left, random.below(3)), 'y');
      }
    }
    ASSERT_EQ(repaired(text), plainlyRepaired(text)) << "round " << round;
  }
}

}  // namespace

}  // namespace norvik::figure
