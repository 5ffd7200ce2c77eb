#pragma once
// MorphRemove: the channels that are dropped on the trash.

#include "front/session.h"

namespace norvik::channels {

/// Removes the selected items of ListChannels, in the view of one part, from a copy of DestPath,
/// "\XMorph.txt" ("\XMorph1.txt" serves the later items), and asks whether to save it; the question
/// speaks of OpenedPath, which is the source's while one is open. A file is replaced only after a
/// Yes and a save dialog; should that fail, it fails without a word. Then the items leave the list.
/// What cannot be read or written ends the tool with a message, and what is missing or empty is
/// never put in a figure's place. After a No or a Cancel "\XMorph.txt" stays. In the end the trash
/// rests.
void MorphRemove(front::Session& session);

}  // namespace norvik::channels
