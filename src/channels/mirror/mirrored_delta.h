#pragma once
// The lines of a morph on their way to another body part.

#include <string>
#include <string_view>

namespace norvik::channels {

/// The axes whose displacements change their sign.
struct MirroredAxes {
  bool x = false;
  bool y = false;
  bool z = false;

  bool any() const { return x || y || z; }
};

/// Whether a line is one of a morph's displacements: its first "d" is the fifth character.
bool isDelta(std::string_view line);

/// A displacement with the numbers of some axes negated as text: a "-" in front goes, and any other
/// number gets one, also a zero. The parts come out with single blanks between them. Throws
/// FileError inputPastEnd (62) for a line with fewer than three numbers behind its index; `path` is
/// the file that it is from.
std::string mirroredDelta(std::string_view line, const MirroredAxes& axes, std::string_view path);

}  // namespace norvik::channels
