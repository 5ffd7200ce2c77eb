#pragma once
// The items of ListChannelsReorder: actor, "*", dial, "^", the actor's line, "@", internal name.

#include "text/columns.h"
#include "text/number_text.h"

#include <string>
#include <string_view>

namespace norvik::channels {

/// One of those items, taken apart. A name that holds one of the marks is cut at the first of them.
class ReorderItem {
 public:
  explicit ReorderItem(std::string_view item) : item_(item) {}

  std::string actor() const { return std::string{text::before(item_, "*")}; }
  std::string dial() const { return std::string{text::before(text::after(item_, "*"), "^")}; }
  double lineNumber() const { return text::value(text::before(text::after(item_, "^"), "@")); }
  std::string internalName() const { return std::string{text::after(item_, "@")}; }
  /// The item as the reorder hands it on: internal name, "#", and what stands in front of the "@".
  std::string reordered() const {
    return internalName() + "#" + std::string{text::before(item_, "@")};
  }

 private:
  std::string item_;
};

}  // namespace norvik::channels
