// The reads and the skipping of lines, against plain ones over the whole text, on random texts.

#include "support/memory_file.h"
#include "support/random_text.h"
#include "text/line_reader.h"

#include <gtest/gtest.h>

namespace norvik::text {

namespace {

using tests::MemoryFile;
using tests::RandomText;

/// Both reads, a character at a time.
class PlainReader {
 public:
  explicit PlainReader(std::string text) : text_(std::move(text)) {}

  bool atEnd() const { return at_ == text_.size(); }
  std::size_t position() const { return at_; }

  std::string line() {
    std::string line;
    while (!atEnd() && !atLineEnd()) line += text_[at_++];
    passLineEnd();
    return line;
  }

  std::string field() {
    std::string field;
    passBlanks();
    if (!atEnd() && text_[at_] == '"') {
      ++at_;
      while (!atEnd() && text_[at_] != '"') field += text_[at_++];
      if (atEnd()) return field;
      ++at_;
      const std::size_t behindQuote = at_;
      passBlanks();
      if (!atEnd() && !atLineEnd() && text_[at_] != ',') {
        at_ = behindQuote;
        return field;
      }
    } else {
      while (!atEnd() && !atLineEnd() && text_[at_] != ',') field += text_[at_++];
    }
    if (!atEnd() && text_[at_] == ',') {
      ++at_;
    } else {
      passLineEnd();
    }
    return field;
  }

 private:
  bool atLineEnd() const { return text_[at_] == '\r' || text_[at_] == '\n'; }
  void passBlanks() {
    while (!atEnd() && (text_[at_] == ' ' || text_[at_] == '\t')) ++at_;
  }
  void passLineEnd() {
    if (atEnd()) return;
    const bool pair = text_.compare(at_, 2, "\r\n") == 0;
    at_ += pair ? 2 : 1;
  }

  std::string text_;
  std::size_t at_ = 0;
};

constexpr std::string_view kPieces[] = {"a",  " ",    "\t", ",",   "\"",
                                        "\r", "\r\n", "\n", "b c", std::string_view("\0\xFF", 2)};

TEST(ReadsProperty, AnyMixOfReadsOfAnyText) {
  RandomText random(1);
  for (int round = 0; round < 3000; ++round) {
    const std::string text = random.of(kPieces, random.below(60));
    const std::size_t most = round % 2 == 0 ? text.size() + 1 : 1 + random.below(4);
    LineReader in(std::make_unique<MemoryFile>(text, most));
    PlainReader plain(text);
    while (!plain.atEnd()) {
      ASSERT_FALSE(in.atEnd());
      if (random.below(2) == 0) {
        ASSERT_EQ(in.field(), plain.field()) << testing::PrintToString(text);
      } else {
        ASSERT_EQ(in.line(), plain.line()) << testing::PrintToString(text);
      }
      ASSERT_EQ(in.position(), plain.position()) << testing::PrintToString(text);
    }
    ASSERT_TRUE(in.atEnd());
  }
}

/// Lines of random lengths about the block's, with and without tokens.
std::string figureLike(RandomText& random, std::size_t lines, std::size_t longest) {
  static constexpr std::string_view kWords[] = {"d 12 0.01",  "actor", "act", "or",
                                                "targetGeom", " ",     "\t",  "target"};
  static constexpr std::string_view kEnds[] = {"\r\n", "\n", "\r"};
  std::string text;
  for (std::size_t i = 0; i < lines; ++i) {
    // Most lines are short; a long one is mostly of one character, else it would hold a token.
    const bool isLong = random.below(8) == 0;
    text += isLong ? std::string(random.below(longest), 'd') : random.of(kWords, random.below(12));
    text += kEnds[random.below(4) == 0 ? random.below(3) : 0];
  }
  if (random.below(2) == 0) text += "the end actor";
  return text;
}

bool accepted(const std::string& line) {
  return line.find("targetGeom") != std::string::npos || line.compare(0, 5, "actor") == 0;
}

void skipAsPlainly(const std::string& text, std::size_t most) {
  const LineFilter filter{anywhere("targetGeom"), atStart("actor")};
  LineReader in(std::make_unique<MemoryFile>(text, most));
  PlainReader plain(text);
  while (!plain.atEnd()) {
    std::uint64_t passed = 0;
    std::string line;
    bool found = false;
    while (!found && !plain.atEnd()) {
      line = plain.line();
      found = accepted(line);
      if (!found) ++passed;
    }
    ASSERT_EQ(in.skipLines(filter), passed);
    if (found) {
      ASSERT_EQ(in.line(), line);
      ASSERT_EQ(in.position(), plain.position());
    }
  }
  ASSERT_TRUE(in.atEnd());
}

TEST(SkipLinesProperty, ShortTexts) {
  RandomText random(2);
  for (int round = 0; round < 1500; ++round) {
    const std::string text = figureLike(random, random.below(12), 40);
    ASSERT_NO_FATAL_FAILURE(skipAsPlainly(text, round % 2 == 0 ? text.size() + 1 : 1))
        << testing::PrintToString(text);
  }
}

TEST(SkipLinesProperty, LinesOfTheBlocksSize) {
  RandomText random(3);
  for (int round = 0; round < 20; ++round) {
    const std::string text = figureLike(random, 40, kBlockSize * 3 / 2);
    ASSERT_NO_FATAL_FAILURE(skipAsPlainly(text, std::string::npos)) << round;
  }
}

TEST(HandOnLinesProperty, WhatIsPassedAndReadIsTheFile) {
  RandomText random(4);
  const LineFilter filter{anywhere("targetGeom"), atStart("actor")};
  for (int round = 0; round < 20; ++round) {
    const std::string text = figureLike(random, 60, kBlockSize / 2);
    LineReader in(std::make_unique<MemoryFile>(text));
    std::size_t at = 0;
    while (!in.atEnd()) {
      in.handOnLines(filter, [&](std::string_view lines) {
        ASSERT_EQ(lines, std::string_view(text).substr(at, lines.size()));
        at += lines.size();
      });
      ASSERT_EQ(in.position(), at);
      if (!in.atEnd()) in.line();
      at = in.position();
    }
    ASSERT_EQ(at, text.size());
  }
}

}  // namespace

}  // namespace norvik::text
