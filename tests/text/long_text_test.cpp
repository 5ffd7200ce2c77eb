#include "text/long/long_text.h"

#include "support/random_text.h"
#include "text/long/brackets.h"
#include "text/long/long_text_edits.h"
#include "text/long/long_text_search.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace norvik::tests {

namespace {

using text::LongText;
using text::LongTextEdits;
using text::TextSearch;

/// Where the lines of a text begin, by the rule alone.
std::vector<std::size_t> lineStarts(const std::string& bytes) {
  std::vector<std::size_t> starts{0};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const bool feed = bytes[i] == '\n';
    const bool loneReturn = bytes[i] == '\r' && (i + 1 == bytes.size() || bytes[i + 1] != '\n');
    if (feed || loneReturn) starts.push_back(i + 1);
  }
  return starts;
}

void expectLines(const LongText& made, const std::string& bytes, RandomText& random) {
  const std::vector<std::size_t> starts = lineStarts(bytes);
  ASSERT_EQ(made.lineCount(), starts.size());
  for (int probe = 0; probe < 8; ++probe) {
    const std::size_t line = random.below(starts.size());
    EXPECT_EQ(made.lineStart(line), starts[line]);
    const std::size_t end = std::min(bytes.find_first_of("\r\n", starts[line]), bytes.size());
    EXPECT_EQ(made.lineEnd(line), end);
    const std::size_t place = random.below(bytes.size() + 1);
    const auto behind = std::upper_bound(starts.begin(), starts.end(), place);
    EXPECT_EQ(made.lineOf(place), static_cast<std::size_t>(behind - starts.begin()) - 1) << place;
  }
  EXPECT_EQ(made.lineStart(starts.size()), bytes.size());
  const std::size_t first = random.below(starts.size());
  const auto lines = made.lines(first, 40);
  ASSERT_EQ(lines.size(), std::min<std::size_t>(40, starts.size() - first));
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i].start, starts[first + i]);
    EXPECT_EQ(lines[i].end, made.lineEnd(first + i));
  }
}

constexpr std::string_view kPieces[] = {"\r\n", "\n", "\r", "a", "actor", "d 1 0.5 0\r\n", "\t"};

TEST(LongText, IsEmptyAtFirst) {
  const LongText text;
  EXPECT_EQ(text.size(), 0U);
  EXPECT_EQ(text.lineCount(), 1U);
  EXPECT_EQ(text.lineOf(0), 0U);
  EXPECT_EQ(text.lineStart(0), 0U);
  EXPECT_EQ(text.lineEnd(0), 0U);
  EXPECT_EQ(text.at(0), '\0');
}

TEST(LongText, CountsEveryLineEnd) {
  const LongText text("a\r\nb\ncat\rd\r\n");
  EXPECT_EQ(text.lineCount(), 5U);
  EXPECT_EQ(text.lineStart(3), 9U);
  EXPECT_EQ(text.lineOf(2), 0U) << "between CR and LF";
  EXPECT_EQ(text.lineOf(3), 1U);
  EXPECT_EQ(text.lineOf(12), 4U);
  EXPECT_EQ(text.lineEnd(2), 8U);
}

TEST(LongText, JoinsALineEndThatArrivesInTwo) {
  LongText text;
  text.append(std::string(32 * 1024 - 1, 'x') + "\r");
  text.append("\n");
  text.append("y");
  EXPECT_EQ(text.lineCount(), 2U);
  EXPECT_EQ(text.lineStart(1), 32U * 1024 + 1);
}

TEST(LongText, JoinsALineEndBehindAPieceThatFallsApart) {
  const std::string piece(std::size_t{32} * 1024, 'a');
  LongText text;
  text.append(piece);
  text.append("\n" + piece.substr(1));
  text.replace(100, 0, piece.substr(2000));
  // The first piece becomes three, the last of which ends with the first half of the line end.
  text.replace(2 * piece.size() - 2000, 0, piece.substr(1) + "\r");
  EXPECT_EQ(text.lineCount(), 2U);
  EXPECT_EQ(text.lineStart(1), 3 * piece.size() - 2000 + 1);
}

TEST(LongText, IsAsAStringAfterAnyEdits) {
  for (unsigned seed = 1; seed <= 3; ++seed) {
    RandomText random(seed);
    std::string model = random.of(kPieces, random.below(2) == 0 ? 50 : 90'000);
    LongText text(model);
    LongTextEdits edits(text);
    std::vector<std::string> states{model};
    for (int i = 0; i < 40; ++i) {
      const std::size_t at = random.below(model.size() + 1);
      const std::size_t most = random.below(4) == 0 ? 30'000 : 5;
      const std::size_t length = std::min(random.below(most), model.size() - at);
      const std::string bytes = random.of(kPieces, random.below(random.below(4) == 0 ? 20'000 : 4));
      const bool changes = length > 0 || !bytes.empty();
      model.replace(at, length, bytes);
      edits.replace(at, length, bytes);
      if (changes) states.push_back(model);
      ASSERT_EQ(text.size(), model.size());
      ASSERT_TRUE(text.string() == model) << seed << " " << i;
      expectLines(text, model, random);
      const std::size_t from = random.below(model.size() + 1);
      EXPECT_EQ(text.slice(from, 7), model.substr(from, 7));
    }
    for (std::size_t i = states.size() - 1; i > 0; --i) {
      ASSERT_TRUE(edits.undo());
      ASSERT_TRUE(text.string() == states[i - 1]) << seed << " " << i;
    }
    EXPECT_FALSE(edits.canUndo());
    for (std::size_t i = 1; i < states.size(); ++i) {
      ASSERT_TRUE(edits.redo());
      ASSERT_TRUE(text.string() == states[i]) << seed << " " << i;
      expectLines(text, states[i], random);
    }
    EXPECT_FALSE(edits.canRedo());
  }
}

TEST(LongTextEdits, TakesKeysThatFollowOneAnotherAsOneStep) {
  LongText text("one two");
  LongTextEdits edits(text);
  edits.replace(3, 0, "x", true);
  edits.replace(4, 0, "y", true);
  EXPECT_EQ(text.string(), "onexy two");
  edits.replace(8, 1, {}, true);
  edits.replace(7, 1, {}, true);
  EXPECT_EQ(text.string(), "onexy t");
  edits.replace(0, 1, {}, true);
  edits.replace(0, 1, {}, true);
  EXPECT_EQ(text.string(), "exy t");
  edits.undo();
  EXPECT_EQ(text.string(), "onexy t");
  edits.undo();
  EXPECT_EQ(text.string(), "onexy two");
  edits.undo();
  EXPECT_EQ(text.string(), "one two");
  EXPECT_FALSE(edits.canUndo());
  edits.redo();
  EXPECT_EQ(text.string(), "onexy two");
}

TEST(LongTextEdits, BeginsAStepAtALineEndAndWhenTold) {
  LongText text;
  LongTextEdits edits(text);
  edits.replace(0, 0, "a", true);
  edits.replace(1, 0, "\r\n", true);
  edits.replace(3, 0, "b", true);
  edits.endStep();
  edits.replace(4, 0, "c", true);
  for (const char* wanted : {"a\r\nb", "a\r\n", "a", ""}) {
    edits.undo();
    EXPECT_EQ(text.string(), wanted);
  }
}

TEST(LongTextEdits, BeginsWithTheFirstText) {
  LongText text;
  LongTextEdits edits(text);
  edits.setAll(LongText("loaded"));
  EXPECT_FALSE(edits.canUndo());
}

TEST(LongTextEdits, BringsBackAWholeText) {
  LongText text("old");
  LongTextEdits edits(text);
  edits.setAll({});
  edits.setAll(LongText("new"));
  EXPECT_EQ(text.string(), "new");
  edits.undo();
  EXPECT_EQ(text.string(), "old") << "the empty text in between is no step";
  edits.redo();
  EXPECT_EQ(text.string(), "new");
  edits.undo();
  edits.replace(0, 0, "very ", false);
  EXPECT_FALSE(edits.canRedo());
}

/// The hits by the rules alone.
std::vector<std::size_t> hitsIn(const std::string& bytes, std::string wanted,
                                TextSearch::Rules rules) {
  const auto fold = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  std::string all = bytes;
  if (!rules.matchCase) {
    std::transform(all.begin(), all.end(), all.begin(), fold);
    std::transform(wanted.begin(), wanted.end(), wanted.begin(), fold);
  }
  const auto ofWord = [&](std::size_t at) {
    return at < bytes.size() &&
           (std::isalnum(static_cast<unsigned char>(bytes[at])) != 0 || bytes[at] == '_');
  };
  std::vector<std::size_t> hits;
  std::size_t at = 0;
  while ((at = all.find(wanted, at)) != std::string::npos) {
    const bool spoilt = (at > 0 && ofWord(at - 1)) || ofWord(at + wanted.size());
    if (rules.wholeWord && spoilt) {
      ++at;
      continue;
    }
    hits.push_back(at);
    at += wanted.size();
  }
  return hits;
}

TEST(TextSearch, FindsWhatAStringFinds) {
  constexpr std::string_view kWords[] = {"cat", "Cat", " ", "ca", "t", "_", "\r\n", "catcat", "aa"};
  for (unsigned seed = 1; seed <= 3; ++seed) {
    RandomText random(seed);
    const std::string bytes = random.of(kWords, 120'000);
    const LongText text(bytes);
    for (const char* wanted : {"cat", "t", "aa", "catcatcat", "dog", "t\r\nc"}) {
      for (const bool word : {false, true}) {
        for (const bool matchCase : {false, true}) {
          const TextSearch::Rules rules{word, matchCase};
          std::vector<std::size_t> hits;
          TextSearch(wanted, rules).visit(text, 0, text.size(), [&](std::size_t at) {
            hits.push_back(at);
            return true;
          });
          EXPECT_EQ(hits, hitsIn(bytes, wanted, rules)) << wanted << word << matchCase;
        }
      }
    }
  }
}

TEST(Brackets, BelongTogetherAcrossPieces) {
  const std::string inner(50'000, '(');
  const std::string bytes = "{ a [b] {" + std::string(40'000, 'x') + "} } ]" + inner;
  const LongText text(bytes);
  const std::size_t close = bytes.find("} }");
  EXPECT_EQ(text::matchingBracket(text, 0), close + 2);
  EXPECT_EQ(text::matchingBracket(text, close + 2), 0U);
  EXPECT_EQ(text::matchingBracket(text, 8), close);
  EXPECT_EQ(text::matchingBracket(text, close), 8U);
  EXPECT_EQ(text::matchingBracket(text, 4), 6U);
  EXPECT_EQ(text::matchingBracket(text, close + 4), std::nullopt) << "none in front of it";
  EXPECT_EQ(text::matchingBracket(text, close + 5), std::nullopt) << "never closed";
  EXPECT_EQ(text::matchingBracket(text, 1), std::nullopt);
  EXPECT_EQ(text::matchingBracket(text, bytes.size()), std::nullopt);
}

TEST(TextSearch, FindsAWordLongerThanAPiece) {
  const std::string wanted(100'000, 'w');
  const LongText text(std::string(70'000, '.') + wanted + ".");
  EXPECT_EQ(TextSearch(wanted, {}).find(text, 0), 70'000U);
  EXPECT_EQ(TextSearch(wanted, {}).find(text, 70'001), std::nullopt);
}

TEST(TextSearch, KnowsTheLettersAbove127) {
  const LongText text("x\xC9T\xC9 \xE9t\xE9");
  EXPECT_EQ(TextSearch("\xE9T\xE9", {}).find(text, 0), 1U);
  EXPECT_EQ(TextSearch("\xE9T\xE9", {true, false}).find(text, 0), 5U);
  EXPECT_EQ(TextSearch("\xE9t\xE9", {false, true}).find(text, 0), 5U);
  EXPECT_EQ(TextSearch("\xF7", {}).find(LongText("\xD7"), 0), std::nullopt) << "two signs";
}

TEST(TextSearch, ReplacesAllInOneGo) {
  const auto made = text::replaceAll(LongText("aaaabaaab"), TextSearch("aa", {}), "a");
  EXPECT_EQ(made.text.string(), "aabaab");
  EXPECT_EQ(made.hits, 3U);
  EXPECT_EQ(made.behindLast, 4U);
  const std::string word(50'000, 'w');
  const auto large = text::replaceAll(LongText(word + "-" + word), TextSearch(word, {}), "x");
  EXPECT_EQ(large.text.string(), "x-x");
  EXPECT_EQ(large.behindLast, 3U);
  EXPECT_EQ(text::replaceAll(LongText("abc"), TextSearch("", {}), "x").hits, 0U);
}

}  // namespace

}  // namespace norvik::tests
