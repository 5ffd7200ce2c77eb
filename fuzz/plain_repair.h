#pragma once
// The repairs of an opened file, step by step over whole texts.

#include <string>

namespace norvik::fuzz {

/// Whether CheckSGI leaves a file alone.
bool isConventional(const std::string& text);

/// What LineEndingRepair makes of a text.
std::string repaired(const std::string& text);

/// What SpaceChopper makes of a text.
std::string chopped(const std::string& text);

/// Whether one of the first lines of a text begins with a blank.
bool beginsIndented(const std::string& text, int lines);

}  // namespace norvik::fuzz
