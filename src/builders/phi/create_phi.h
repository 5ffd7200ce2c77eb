#pragma once
// MenuPhi: a phi file out of a figure.

#include "builders/phi/form_phi.h"
#include "front/session.h"

namespace norvik::builders {

/// Hangs the creator on MenuPhi. It asks for a CR2 and leaves a phi file beside it, named by the
/// path up to its first dot, which it opens in the editor. An existing phi file is never
/// overwritten: then, and when the figure is not as expected or the operator cancels, what there is
/// stays in "\Phi.txt" in the program folder. The figure is read alone, but for the repair of its
/// line endings.
void wireCreatePhi(front::Session& session, FormPhi& form);

}  // namespace norvik::builders
