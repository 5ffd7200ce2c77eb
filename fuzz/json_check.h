#pragma once
// A reader of JSON and UTF-8 that has nothing to do with the program's writer.

#include <optional>
#include <string>
#include <string_view>

namespace norvik::fuzz {

/// The bytes that a JSON string stands for, each character below 256 being the byte of its number;
/// none if it is no string or holds another character.
std::optional<std::string> jsonBytes(std::string_view json);

/// Whether a line is one JSON object.
bool isJsonObject(std::string_view line);

}  // namespace norvik::fuzz
