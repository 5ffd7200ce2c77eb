#pragma once
// A guess at the weight of a link that a chain gets.

#include <string>
#include <string_view>

namespace norvik::builders {

struct NewWeight {
  std::string line;  ///< of the figure, behind that of the last weight
  std::string text;  ///< the index and the weight
};

/// The weight behind `lastLine`: its index is one higher, and it is a twentieth of the last one.
/// The index is read as one digit.
NewWeight weightBehind(std::string_view lastLine);

}  // namespace norvik::builders
