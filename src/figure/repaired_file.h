#pragma once
// A file whose line endings are examined, and one in whose place its repair comes.

#include "front/session.h"

#include <string>
#include <string_view>

namespace norvik::figure {

/// Whether a file's first 200 bytes hold a CR LF. Throws FileError for a missing file.
bool hasConventionalStart(const text::Disk& disk, std::string_view path);

/// What the operator should know before he agrees to a repair of the file; empty for nothing.
std::string_view cautionOfRepair(const text::Disk& disk, std::string_view path);

/// Converts a file's line endings and returns the name of its backup. The converted text is written
/// beside the file under the path up to its first dot and "new"; then the file becomes its own
/// backup, named by the path in front of its first dot, its extension in capitals and ".bak", and
/// the new text takes its name. Errors of these renames are ignored. Errors while the file is read
/// or the text is written are thrown; the file is then as it was.
std::string repairLineEnds(front::Session& session, const std::string& path);

}  // namespace norvik::figure
