#pragma once
// PictureCopyToDest: a morph, or one ERC link of a morph, from the source's figure into the same
// body part of the destination.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the copy on a left click on PictureCopyToDest. It works on the selected lines of
/// ListChannels in the view of one part, through "\SaveMorph.txt" and "\InsertMorph.txt" in the
/// program folder, and replaces a file only after a Yes and a save dialog: until then, and on any
/// error, all figures are as they were. After a No, "\InsertMorph.txt" stays. Of several selected
/// lines only the last one arrives.
void wireCopyMorph(front::Session& session);

}  // namespace norvik::channels
