#pragma once
// Invented texture coordinates as text.

#include <string>

namespace norvik::obj {

/// The `vt` line of a coordinate. The exponent form is taken out, and a minus sign becomes a zero:
/// -.25 is 0.25 and -1.5 is 01.5. A positive u keeps its sign column, and so does a v that is not
/// below 1: "vt  .25 0.5", "vt  .25  3".
std::string uvLine(float u, float v);

}  // namespace norvik::obj
