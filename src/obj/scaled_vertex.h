#pragma once
// A vertex line with its coordinates scaled.

#include <string>
#include <string_view>

namespace norvik::obj {

/// Whether a line is that of a vertex, which the scaler writes anew.
bool isScaledLine(std::string_view line);

/// The line of a vertex, scaled by an amount: a positive one multiplies, a negative one divides.
/// The columns are those that files scaled by this program have always had: x ends in the column
/// of its eighth digit, y and z are filled up with zeros to eight characters, or nine below 0. A
/// result without a point gets its zeros all the same, so that 1 becomes 10000000, and 0 gets
/// none. Throws FileError overflow (6) for a number beyond single precision.
std::string scaledVertex(std::string_view line, float amount);

}  // namespace norvik::obj
