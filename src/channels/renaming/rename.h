#pragma once
// PictureRenameMorph: a new name for a morph or a body part.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the rename on a left click on PictureRenameMorph. The first click shows the two options,
/// the next one with an option chosen shows TextMorphRename, and a click or Enter there runs the
/// pass over the file of LabelFileNameForEditor into "\RenMorph.txt"; Escape puts the box and the
/// options away. A file is replaced only after a Yes and a save dialog: until then, and on any
/// error, all figures are as they were. Afterwards the labels of both panes and the list show the
/// new names. After a No or a Cancel "\RenMorph.txt" stays.
void wireRename(front::Session& session);

}  // namespace norvik::channels
