#pragma once
// The repair of figures whose lines are indented with a leading blank.

#include "front/session.h"

#include <string>

namespace norvik::figure {

/// Takes one leading blank from every line that has one. Works through "Chop.doc" in the current
/// folder and replaces the file without a question. Throws FileError, pathFileAccess (75) for a
/// read-only file; the file is then as it was, and "Chop.doc" stays.
void SpaceChopper(front::Session& session, const std::string& path);

}  // namespace norvik::figure
