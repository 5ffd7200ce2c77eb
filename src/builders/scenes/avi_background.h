#pragma once
// MenuPZ3AVI: a prop that brings a scene's background film along.

#include "front/session.h"

namespace norvik::builders {

/// Hangs the tool on its menu entry. It asks for a scene of its own and writes it, with an older
/// version number and up to its film line, through "\Avi.txt" to the scene's name with "-AVI.pp2".
/// A file of that name is not replaced: the result then stays in "\Avi.txt".
void wireAviBackground(front::Session& session);

}  // namespace norvik::builders
