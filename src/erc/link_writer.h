#pragma once
// The five routines that write a link into the destination.

#include "erc/form_ecm.h"
#include "erc/link_kinds.h"
#include "front/session.h"

namespace norvik::erc {

inline constexpr std::string_view kLinkScratch = "\\EMC.tmp";

/// Writes the link that FormECM's texts say behind the header of its slaved channel, through
/// "\EMC.tmp" in the program folder, and saves the result by a dialog: over the figure, or to a
/// name that no file has yet. Where a link stands already the operator is asked; PBM and CM then
/// put the new one in its place, whatever the question says, and the others behind it. After a
/// Cancel of the dialog, and on an error, the figure is as it was and the scratch file stays; after
/// a No it is gone.
void writeLink(front::Session& session, FormECM& form, const KindOfLink& kind);

}  // namespace norvik::erc
