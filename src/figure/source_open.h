#pragma once
// LabelOpenSource: a second figure for the right-hand pane.

#include "front/session.h"

namespace norvik::figure {

/// Hangs the source open on a left click on LabelOpenSource. It lists the chosen CR2's actors into
/// ListChannels (or over the destination's, when the two captions end in the same 20 characters)
/// and leaves OpenedPath at the source, so that a later save reads the source. The file itself does
/// not change, but for its read-only attribute if the operator wants it gone.
void wireSourceOpen(front::Session& session);

}  // namespace norvik::figure
