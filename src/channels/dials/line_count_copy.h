#pragma once
// Lines passed or copied by count, as far as a list's line numbers reach.

#include "text/rewrite_pass.h"

namespace norvik::channels {

/// Passes over `count` lines, or those that are left: the next read tells.
void passLineCount(text::LineReader& in, double count);

/// Copies `count` lines, or those that are left: the next read tells.
void copyLineCount(text::RewritePass& pass, double count);

}  // namespace norvik::channels
