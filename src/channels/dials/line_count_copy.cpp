#include "channels/dials/line_count_copy.h"

#include "text/line_copy.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace norvik::channels {

namespace {

std::uint64_t wholeCount(double count) {
  constexpr double kMost = 1e15;
  return static_cast<std::uint64_t>(std::ceil(std::clamp(count, 0.0, kMost)));
}

}  // namespace

void passLineCount(text::LineReader& in, double count) {
  in.handOnNext(wholeCount(count), [](std::string_view) {});
}

void copyLineCount(text::RewritePass& pass, double count) {
  text::copyNext(pass.in(), pass.out(), wholeCount(count));
}

}  // namespace norvik::channels
