#pragma once
// The line ending check that comes before a file is listed.

#include "front/session.h"

#include <string>

namespace norvik::figure {

/// Looks at a file's first 200 bytes; without a CR LF among them the operator is asked, and the
/// file is converted. An empty path becomes the caption of LabelFileName.
///
/// The converted text is written beside the file under the path up to its first dot and "new"; then
/// the file becomes its own backup, named by the path in front of its first dot, its extension in
/// capitals and ".bak", and the new text takes its name. Errors of these renames are ignored, so
/// the message of success comes in any case. On a refusal OpenCancelled is set and nothing on the
/// disk changes. Errors while the file is read or the text is written are thrown; the file is then
/// as it was.
void CheckSGI(front::Session& session, std::string& path);

}  // namespace norvik::figure
