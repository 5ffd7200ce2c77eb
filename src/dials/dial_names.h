#pragma once
// The names that figure files give by number: of dials and of body parts.

#include <optional>
#include <span>
#include <string_view>

namespace norvik::dials {

/// Dial names, group 1028; number 1 is the first.
std::span<const std::string_view> dialNames();

/// Body part names, group 1024; number 1 is the first.
std::span<const std::string_view> partNames();

/// The number of a name, in the case that it is written in; none if it is not there.
std::optional<int> numberOf(std::span<const std::string_view> names, std::string_view name);

}  // namespace norvik::dials
