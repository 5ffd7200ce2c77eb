#pragma once
// What else can be done behind a message that ends a tool.

#include "front/front_end.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace norvik::front {

/// What is said, and a button for each way. To leave it at that is the default.
struct FurtherWays {
  std::string title;
  std::string text;
  std::vector<std::string> ways;  ///< a letter behind "&" is the button's key
};

/// What a front end is that can offer such ways.
class FurtherWaysOffer {
 public:
  virtual ~FurtherWaysOffer() = default;
  /// The way that the operator takes; none if he leaves it at that.
  virtual std::optional<std::size_t> offer(const FurtherWays& offered) = 0;
};

/// The same; none where the front end offers nothing.
inline std::optional<std::size_t> offerFurtherWays(FrontEnd& front, const FurtherWays& offered) {
  auto* const offer = dynamic_cast<FurtherWaysOffer*>(&front);
  return offer == nullptr ? std::nullopt : offer->offer(offered);
}

}  // namespace norvik::front
