#pragma once
// MenuViewPhi: a phi file into the editor.

#include "builders/phi/form_phi.h"
#include "front/session.h"

#include <string>

namespace norvik::builders {

/// Shows the editor with a phi file. Where it is open already the lines are added behind those that
/// are there, and what is saved later goes into this file. A file that cannot be read throws
/// FileError with the form on view.
void showPhi(front::Session& session, FormPhi& form, const std::string& path);

/// Hangs that on MenuViewPhi, with any file that the operator chooses. Nothing changes on the disk.
void wireViewPhi(front::Session& session, FormPhi& form);

}  // namespace norvik::builders
