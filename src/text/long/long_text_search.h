#pragma once
// Searches in a text of any size.

#include "text/long/long_text.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::text {

/// What is searched for, and how. Letters are those of single-byte text: A to Z, and those above
/// 127 that the western character set has.
class TextSearch {
 public:
  struct Rules {
    bool wholeWord = false;  ///< a letter, a digit or "_" beside a hit spoils it
    bool matchCase = false;
  };

  TextSearch(std::string_view wanted, Rules rules);

  /// How many bytes a hit has.
  std::size_t size() const { return wanted_.size(); }
  /// The first hit at or behind a position. An empty text is found nowhere.
  std::optional<std::size_t> find(const LongText& text, std::size_t from) const;
  /// Calls `seen` with each hit that begins from a position on and in front of `limit`, none of
  /// which overlaps another, until it returns false.
  using Visit = std::function<bool(std::size_t)>;
  void visit(const LongText& text, std::size_t from, std::size_t limit, const Visit& seen) const;

 private:
  struct Sides {
    char one;
    char other;  ///< the same letter as a capital; the same byte where case does not matter
  };

  std::size_t findIn(std::string_view bytes, std::size_t from) const;
  bool fits(const char* bytes) const;
  bool standsAlone(const LongText& text, std::size_t at) const;
  Sides sidesOf(char letter) const;

  std::string wanted_;  ///< in small letters, unless case matters
  Rules rules_;
};

/// A copy of the text with every hit replaced, from the first byte on; new text is not searched.
struct Replaced {
  LongText text;
  std::size_t hits = 0;
  std::size_t behindLast = 0;  ///< the place behind the last new text
};
Replaced replaceAll(const LongText& text, const TextSearch& search, std::string_view with);

}  // namespace norvik::text
