#pragma once
// File names as the figure files' own system compares them.

#include <string>
#include <string_view>
#include <vector>

namespace norvik::text {

/// Whether a text is well-formed UTF-8, as the host's names are.
bool isUtf8(std::string_view text);

/// The characters of a name with case taken out of them: of the Latin letters up to U+017E, and of
/// Greek and Cyrillic. A name that is not UTF-8 comes out of a figure file, where a byte is the
/// character of the same number; so it finds the host's file of that name.
std::u32string foldedName(std::string_view name);

/// Whether two names are one and the same file's. Paths may be compared as well.
bool sameName(std::string_view left, std::string_view right);

/// Puts names in the order of their folded characters; names that differ in case alone in that of
/// their bytes.
void sortNames(std::vector<std::string>& names);

}  // namespace norvik::text
