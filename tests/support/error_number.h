#pragma once
// What a step of the file layer comes to.

#include "text/file_error.h"

namespace norvik::tests {

/// The classic number of the error that a step ends with; 0 for none.
template <typename Step>
int errorNumber(Step&& step) {
  try {
    step();
    return 0;
  } catch (const text::FileError& error) {
    return static_cast<int>(error.number());
  }
}

}  // namespace norvik::tests
