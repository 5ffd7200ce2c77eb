#pragma once
// The count of brackets behind the bracket checker.

#include "text/line_reader.h"

#include <string>

namespace norvik::figure {

/// What a count found. `missing` is "right" or "left" when an actor lacks exactly one bracket; then
/// `actor` names it and the totals are those up to its end.
struct BracketCount {
  std::string missing;
  std::string actor;
  long long left = 0;
  long long right = 0;
};

/// Counts the fields that begin with a bracket, by actor and in total. The text must hold a
/// figureResFile field; the bracket in front of it counts as the first left one. Throws FileError
/// inputPastEnd for a text without one.
BracketCount countBrackets(text::LineReader& in);

}  // namespace norvik::figure
