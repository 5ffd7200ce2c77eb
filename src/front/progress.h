#pragma once
// The progress of a long tool, drawn with tabs in a label.

#include "front/text_controls.h"

namespace norvik::front {

/// Appends a tab for each whole ten percent to the label that the tool shows its progress in. The
/// caption grows with each call; the caller clears it.
void ProgressUpdate(Label& progressLabel, int percent);

}  // namespace norvik::front
