#pragma once
// Brackets that belong together.

#include "text/long/long_text.h"

#include <optional>

namespace norvik::text {

/// The bracket that belongs to the one at a position, whatever stands between them; none for a byte
/// that is no bracket, and for one that has no other. The brackets are { } ( ) [ ].
std::optional<std::size_t> matchingBracket(const LongText& content, std::size_t at);

}  // namespace norvik::text
