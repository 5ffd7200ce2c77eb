#pragma once
// What a fuzz target makes of the bytes it is given, and how it complains.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::fuzz {

/// An input's first line steers the run, the rest is a file's text: so the kept inputs can be read
/// and written by hand.
struct Input {
  std::string steering;
  std::string text;

  Input(const std::uint8_t* data, std::size_t size);
  /// The steering line cut at each '|'; at least `count` pieces, missing ones empty.
  std::vector<std::string> pieces(std::size_t count) const;
};

/// The number that a piece begins with, held between two limits; `least` for a piece without one.
std::size_t numberIn(std::string_view piece, std::size_t least, std::size_t most);

/// Ends the run as a finding unless `truth` holds.
void require(bool truth, std::string_view what);

/// Ends the run as a finding, with both texts, unless they are equal.
void requireEqual(std::string_view found, std::string_view wanted, std::string_view what);

/// The same for two lists.
void requireEqual(const std::vector<std::string>& found, const std::vector<std::string>& wanted,
                  std::string_view what);

}  // namespace norvik::fuzz
