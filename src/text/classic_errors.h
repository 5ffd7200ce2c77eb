#pragma once
// From the host's error numbers to the classic ones.

#include "text/file_error.h"

namespace norvik::text {

/// The classic number for a host's error number.
ErrorNumber classicNumber(int hostError);

/// Throws FileError for a host's error number; 0 is none.
void raise(int hostError);

/// The same for what was being done with the file at a system path.
void raise(int hostError, std::string_view path, FileAct act);

}  // namespace norvik::text
