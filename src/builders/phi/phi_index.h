#pragma once
// What the creator of phi files remembers of its first pass over a figure, so that it need not look
// through the whole figure again for what is not there.

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace norvik::builders {

/// Is told every field that holds one of the words below, in file order.
class PhiIndex {
 public:
  static constexpr std::string_view kActor = "actor ";
  static constexpr std::string_view kChain = "inkyChain";

  /// A field, and where the next one begins.
  struct Place {
    std::string field;
    std::uint64_t behind = 0;
  };

  void note(std::string_view field, std::uint64_t behind);

  /// Whether the figure has the line of a part that phi files list; false for all other lines.
  bool has(std::string_view actorLine) const { return actors_.contains(actorLine); }
  /// The first chain, if there is one.
  const std::optional<Place>& chain() const { return chain_; }

  /// What the figure ends with.
  std::string lastField;

 private:
  std::set<std::string, std::less<>> actors_;  ///< of the listed parts, so there are few
  std::optional<Place> chain_;
};

}  // namespace norvik::builders
