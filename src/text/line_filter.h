#pragma once
// Which lines of a file a pass cares for. Most bytes of a figure are the numbers of its morphs; a
// filter lets a pass step over them at the speed of a byte search.

#include <initializer_list>
#include <string_view>
#include <vector>

namespace norvik::text {

/// Accepts the lines that hold one of its tokens. It may accept more lines than it is asked for (a
/// caller still makes its own test), but it never misses one.
class LineFilter {
 public:
  struct Token {
    std::string_view text;     ///< must outlive the filter; an empty one is in every line
    bool atLineStart = false;  ///< only where a line begins with it
  };

  LineFilter(std::initializer_list<Token> tokens);
  explicit LineFilter(const std::vector<Token>& tokens);

  /// The offset of the first hit in `block`, or its size. The block begins at the start of a line.
  std::size_t find(std::string_view block) const;

 private:
  struct Search {
    Token token;
    std::size_t rarest = 0;  ///< the offset of the character that is looked for first
  };
  static std::size_t find(std::string_view block, std::size_t begin, std::size_t end,
                          const Search& search);

  std::vector<Search> searches_;
};

/// A token that counts wherever it stands in a line.
inline LineFilter::Token anywhere(std::string_view text) {
  return {text, false};
}
/// A token that counts at the first column alone.
inline LineFilter::Token atStart(std::string_view text) {
  return {text, true};
}

}  // namespace norvik::text
