#pragma once
// In which lines two versions of a file differ.

#include "text/host.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::text {

/// Lines of one version that stand one behind the other.
struct LineRange {
  std::uint64_t first = 0;  ///< from 0
  std::uint64_t count = 0;
  /// Where each 64th of them begins, in bytes from the start of the file.
  std::vector<std::uint64_t> marks;

  static constexpr std::uint64_t kPerMark = 64;
};

/// Lines that went, and lines that came in their place.
struct Change {
  std::string section;  ///< what the lines are part of
  LineRange before;
  LineRange after;
};

/// What a line begins, if it begins a section: an actor, a material. Empty for all others.
using SectionOf = std::function<std::string(std::string_view line)>;

/// Compares two host files line by line, whatever their line ends. They are read once, forward; no
/// more is held than a number for each line on the way to the next stretch that is the same in
/// both. Where none is found within a million lines, all the rest counts as one change. A file that
/// is not there has no lines.
std::vector<Change> compareFiles(HostOps& host, const std::string& before, const std::string& after,
                                 const SectionOf& sectionOf);

/// A line of a range, by its place in it.
std::string lineOf(HostOps& host, const std::string& file, const LineRange& range,
                   std::uint64_t index);

}  // namespace norvik::text
