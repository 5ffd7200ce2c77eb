#pragma once
// The choices of a link in FormECM, from the slaved channel to the ratio.

#include "erc/form_ecm.h"
#include "front/session.h"

namespace norvik::erc {

/// Hangs each step on what the operator does to make it: clicks in ListControlledMorph (the slaved
/// channel, then the master), ListConFigECM and ListActorsECM, and Enter in the texts that they
/// fill. Enter in TextPBMRatio writes the link (see writeLink), and so does, for a joint that
/// controls a joint, the click in ListActorsECM. LabelDone and LabelCancel close the form.
void wireLinkWalk(front::Session& session, FormECM& form);

}  // namespace norvik::erc
