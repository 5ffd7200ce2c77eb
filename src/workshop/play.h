#pragma once
// MenuPlay, LabelPlay and LabelBoss: a break from the work, and the way back.

#include "workshop/workshop.h"

namespace norvik::obj {

/// MenuPlay loads the form with nothing on it but LabelPlay and LabelBoss. LabelPlay shows
/// PictureZoom to draw on by hand: a drag of the left button draws a box, one of the right button
/// dots. LabelBoss covers it all with two pictures and gives the labels harmless names.
void wirePlay(Workshop& workshop);

}  // namespace norvik::obj
