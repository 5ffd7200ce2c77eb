#pragma once
// What the scans for channels share.

#include "text/file_error.h"
#include "text/line_reader.h"

namespace norvik::channels {

/// Runs `scan` and takes the end of the file for its end. Whether it came to its own end.
template <typename Scan>
bool untilEndOfFile(Scan&& scan) {
  try {
    scan();
    return true;
  } catch (const text::FileError& error) {
    if (error.number() != text::ErrorNumber::inputPastEnd) throw;
    return false;
  }
}

/// Passes over lines as LineReader::skipLines does, without the cost of counting them: most of what
/// is passed over is the numbers of morphs.
inline void passLines(text::LineReader& in, const text::LineFilter& filter) {
  in.handOnLines(filter, [](std::string_view) {});
}

}  // namespace norvik::channels
