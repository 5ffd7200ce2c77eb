#pragma once
// The line ending check of the editor.

#include "front/session.h"

#include <string>

namespace norvik::editor {

/// Offers to repair the line ends of a Poser or mesh file whose first 200 bytes hold no CR LF, as
/// the main form's check does, in other words; after a No the file stays as it is. Files with other
/// extensions, capitals among them, are passed over. Throws fileNotFound (53) for a missing file of
/// any kind.
void CheckSGIEditor(front::Session& session, const std::string& path);

}  // namespace norvik::editor
