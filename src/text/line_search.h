#pragma once
// Searches for a line, with or without a copy of what is passed on the way.

#include "text/columns.h"
#include "text/rewrite_pass.h"

#include <string>
#include <string_view>

namespace norvik::text {

// In all of them `mayFit` lets the lines through that are looked at (see LineFilter), and a search
// that meets the end of the file throws FileError inputPastEnd (62).

/// Reads up to and including the first line that fits, and returns it.
template <typename Fits>
std::string passThrough(LineReader& in, const LineFilter& mayFit, Fits&& fits) {
  for (;;) {
    in.passLines(mayFit);
    const std::string_view line = in.line();
    if (fits(line)) return std::string{line};
  }
}

/// Copies up to and including the first line that fits, and returns it.
template <typename Fits>
std::string copyThrough(RewritePass& pass, const LineFilter& mayFit, Fits&& fits) {
  for (;;) {
    pass.copyLines(mayFit);
    const std::string_view line = pass.in().line();
    pass.out().line(line);
    if (fits(line)) return std::string{line};
  }
}

/// Copies up to the first line that fits; that one is read, not written, and returned.
template <typename Fits>
std::string copyUpTo(RewritePass& pass, const LineFilter& mayFit, Fits&& fits) {
  for (;;) {
    pass.copyLines(mayFit);
    const std::string_view line = pass.in().line();
    if (fits(line)) return std::string{line};
    pass.out().line(line);
  }
}

/// The test of a search for the first line that holds a token.
inline auto holding(std::string_view token) {
  return [token](std::string_view line) { return holds(line, token); };
}

}  // namespace norvik::text
