#pragma once
// The five lines of a link.

#include "erc/form_ecm.h"
#include "erc/link_kinds.h"

#include <array>
#include <string>
#include <string_view>

namespace norvik::erc {

/// What the first line of a link holds.
inline constexpr std::string_view kLinkStart = "valueOpDeltaAdd";

/// A link's last line, with a ratio as it was typed.
std::string ratioLine(std::string_view ratio);

/// The lines that FormECM's texts make, all behind three tabs, as they stand: nothing is trimmed,
/// and of the master channel some kinds write the first letters alone.
std::array<std::string, 5> linkBlock(const FormECM& form, const KindOfLink& kind);

}  // namespace norvik::erc
