#pragma once
// Runs of a scan that ends quietly where its file does.

#include "text/file_error.h"

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

}  // namespace norvik::channels
