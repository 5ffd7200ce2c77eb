#pragma once
// Line ends in blocks of bytes.

#include <cstdint>
#include <string_view>

namespace norvik::text {

/// The offset of the first CR or LF at or behind `start`, or the text's size.
std::size_t findLineEnd(std::string_view text, std::size_t start);

/// The line endings in a text that is not cut between a CR and its LF.
std::uint64_t countLines(std::string_view text);

/// Whether every line ending in the text is CR LF.
bool hasConventionalEndings(std::string_view text);

/// Whether any of the lines in the text is empty; the text begins at the start of a line.
bool hasEmptyLines(std::string_view text);

}  // namespace norvik::text
