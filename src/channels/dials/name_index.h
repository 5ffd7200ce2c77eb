#pragma once
// Which of many names occurs in a line.

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace norvik::channels {

/// Finds the first of a list's names that is part of a text. A figure has thousands of morphs and a
/// line for each, so the text's parts are looked up among the names, not the names in the text.
class NameIndex {
 public:
  static constexpr int kNone = -1;

  explicit NameIndex(const std::vector<std::string>& names);

  /// The smallest index from `from` on whose name occurs in `text`; an empty name occurs in any.
  int firstIn(std::string_view text, int from) const;

 private:
  std::vector<std::string> names_;
  std::unordered_map<std::string_view, std::vector<int>> places_;  ///< ascending
  std::vector<std::size_t> lengths_;                               ///< of the names, each once
};

}  // namespace norvik::channels
