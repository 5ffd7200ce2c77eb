#include "channels/dials/line_count_copy.h"

namespace norvik::channels {

void passLineCount(text::LineReader& in, double count) {
  for (double passed = 0; passed < count; ++passed) static_cast<void>(in.line());
}

void copyLineCount(text::RewritePass& pass, double count) {
  for (double copied = 0; copied < count; ++copied) pass.out().line(pass.in().line());
}

}  // namespace norvik::channels
