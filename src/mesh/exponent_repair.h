#pragma once
// Numbers in exponent form as plain ones.

#include <string>
#include <string_view>

namespace norvik::obj {

/// A number's text without its exponent: "1.234E-05" becomes "0.000012". Only the digit from the
/// third place behind the "E" on counts as exponent, and the sign of both number and exponent is
/// lost, so that a large number becomes a small one. A text without "E" stays.
std::string withoutExponent(std::string_view number);

}  // namespace norvik::obj
