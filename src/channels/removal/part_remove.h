#pragma once
// The body parts that are dropped on the trash.

#include "front/session.h"

namespace norvik::channels {

/// Removes the body parts that are selected in ListActors from a copy of OpenedPath, "\cr2.doc"
/// ("\cr21.doc" serves the later ones), and asks whether to save it. A file is replaced only after
/// a Yes and a save dialog; until then, and on any error, all figures are as they were. Afterwards
/// the destination's labels name the saved file, and of the removed entries the last one leaves the
/// list. With nothing selected there is nothing to save, which is told behind the dialog. After a
/// No or a Cancel "\cr2.doc" stays. In the end the trash rests.
void removeParts(front::Session& session);

}  // namespace norvik::channels
