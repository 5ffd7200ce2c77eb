#pragma once
// MenuBrack: are there as many left as right brackets in a figure?

#include "front/session.h"

namespace norvik::figure {

/// Hangs the bracket checker on MenuBrack, and the way back on the pictures that it shows.
///
/// The checker names the first actor that lacks exactly one bracket; otherwise it compares the
/// totals and shows PictureBrktsOK, PictureBrktLeft or PictureBrktRight, with menuFile and
/// MenuCR2Tools disabled until that picture is clicked. It reads OpenedPath and changes no file.
void wireBracketChecker(front::Session& session);

/// Hides the bracket pictures and their pin and enables the menus again.
void leaveBracketCheck(front::Opening& opening);

}  // namespace norvik::figure
