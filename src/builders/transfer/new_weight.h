#pragma once
// A guess at the weight of a link that a chain gets.

#include "front/list_box.h"

#include <string>
#include <string_view>

namespace norvik::builders {

/// Marks the new link's place among the weights that the list shows.
inline constexpr std::string_view kYourLink = "Your Link";

struct NewWeight {
  std::string line;  ///< of the figure, behind that of the last weight
  std::string text;  ///< the index and the weight, as the list shows them
};

/// The weight behind `lastLine`: its index is one higher, and it is a twentieth of the last one.
/// The index is read as one digit.
NewWeight weightBehind(std::string_view lastLine);

/// The last weight by the ratio of the chain's first two, which the list shows behind its heading.
/// A finer guess that nothing is made of: what is written is a twentieth. 0 where the weights give
/// no ratio.
double weightByRatio(const front::ListBox& weights, std::string_view lastLine);

}  // namespace norvik::builders
