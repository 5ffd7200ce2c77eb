#pragma once
// Numbers in exponent form, written out.

#include <string>
#include <string_view>

namespace norvik::channels {

/// A number with an "e" as plain decimal text, of which the first eight characters are kept, the
/// sign and "0." among them: "-1.5e-03" is "-0.0015". Any other text as it is.
std::string plainDecimal(std::string_view number);

}  // namespace norvik::channels
