#include "text/line_copy.h"

namespace norvik::text {

void copyLines(LineReader& in, LineWriter& out, const LineFilter& filter) {
  in.handOnLines(filter, [&out](std::string_view lines) { out.lines(lines); });
}

void copyNext(LineReader& in, LineWriter& out, std::uint64_t count) {
  in.handOnNext(count, [&out](std::string_view lines) { out.lines(lines); });
}

void copyRest(LineReader& in, LineWriter& out) {
  if (!in.atEnd() && !in.atLineStart()) out.line(in.line());
  copyLines(in, out, {});
}

}  // namespace norvik::text
