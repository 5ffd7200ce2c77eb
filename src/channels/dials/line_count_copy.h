#pragma once
// Lines passed or copied by count, as far as a list's line numbers reach.

#include "text/rewrite_pass.h"

namespace norvik::channels {

/// Passes over `count` lines. Throws FileError inputPastEnd (62) where the file has fewer.
void passLineCount(text::LineReader& in, double count);

/// Copies `count` lines. Throws FileError inputPastEnd (62) where the file has fewer.
void copyLineCount(text::RewritePass& pass, double count);

}  // namespace norvik::channels
