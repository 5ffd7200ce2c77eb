#pragma once
// menuMirror: a morph carried onto another body part, mirrored.

#include "front/session.h"

#include <string>

namespace norvik::channels {

/// Carries MirrorMorph onto a body part, after its questions: "\mirmorph.cr2" in the program folder
/// becomes a copy of OpenedPath with the morph as the part's first channel. No figure changes and
/// nothing is opened; the file is there to be taken. Without a pending morph nothing happens. A
/// file that does not fit is told about, and "\mirmorph.cr2" is then as long as it came.
void mirrorOnto(front::Session& session, const std::string& part);

/// Hangs the arming on menuMirror, which shows PictureMirror, and the choice of the morph on a
/// click on an item of ListChannels while all channels are on view. Opening a menu that hides the
/// picture disarms the tool.
void wireMirror(front::Session& session);

}  // namespace norvik::channels
