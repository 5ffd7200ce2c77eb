#pragma once
// The joint and translation channels of the figure in FormECM's list of channels.

#include "erc/form_ecm.h"
#include "front/session.h"

namespace norvik::erc {

/// Adds an item "xrot head:1 " for each rotation channel of the destination's second section, and
/// two to ListMinMax with its limits: CM those of FigureNumber, JCM those of the slaved morph's
/// figure, other kinds those of every figure. A file without a second section, or one that ends in
/// the middle, is inputPastEnd (62).
void AddJoints(front::Session& session, FormECM& form);

/// The same for translation channels, "xtran head:1 ". While TextPBM3 is empty, those of the slaved
/// channel's figure alone, unless a translation is what is controlled.
void AddTranslations(front::Session& session, FormECM& form);

}  // namespace norvik::erc
