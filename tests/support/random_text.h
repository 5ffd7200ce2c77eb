#pragma once
// Texts for tests of properties: random, and the same in every run.

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

namespace norvik::tests {

class RandomText {
 public:
  explicit RandomText(unsigned seed) : engine_(seed) {}

  /// A number from 0 on, below `end`. Not by a distribution of the library: these differ.
  std::size_t below(std::size_t end) { return engine_() % end; }

  /// A text of this length over an alphabet of pieces, the last of which may go beyond it.
  template <std::size_t Count>
  std::string of(const std::string_view (&pieces)[Count], std::size_t length) {
    std::string text;
    while (text.size() < length) text += pieces[below(Count)];
    return text;
  }

 private:
  std::mt19937 engine_;
};

}  // namespace norvik::tests
