#pragma once
// The parts of a file, for people who look at what has changed in it.

#include "text/file_changes.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::figure {

/// What a line begins: "actor head:1", "prop hair", "material skin", "figure", or a group of a
/// mesh, "g head". Empty for any other line.
std::string sectionOf(std::string_view line);

/// A line of a file that names something.
struct Mention {
  std::string name;
  std::uint64_t line = 0;  ///< from 0
  std::string text;
};

/// The lines of the new version that still name what has gone: a morph, a dial, an actor, a prop, a
/// material. A thousand at the most, of the first names that have gone.
std::vector<Mention> mentionsOfTheGone(text::HostOps& host, const std::string& before,
                                       const std::string& after,
                                       const std::vector<text::Change>& changes);

}  // namespace norvik::figure
