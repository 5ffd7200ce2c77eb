#pragma once
// Searches that read by fields, so that indentation does not count.

#include "text/line_reader.h"

#include <string_view>

namespace norvik::text {

/// Reads fields up to and including the first that fits and holds `token`; lines that cannot hold
/// one are stepped over. Throws FileError inputPastEnd (62) at the end of the file.
template <typename Fits>
void passField(LineReader& in, std::string_view token, Fits&& fits) {
  // A line without the token, a comma or a quote is one field that cannot fit.
  const LineFilter stops{anywhere(token), anywhere(","), anywhere("\"")};
  do {
    in.passLines(stops);
  } while (!fits(in.field()));
}

/// Reads up to and including the first field that holds `token`.
inline void passFieldHolding(LineReader& in, std::string_view token) {
  passField(in, token, [token](std::string_view field) { return field.find(token) != field.npos; });
}

}  // namespace norvik::text
