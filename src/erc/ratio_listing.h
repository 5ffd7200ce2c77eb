#pragma once
// PictureChangeRatio: the destination's channels and links in a list of their own.

#include "erc/form_list_emcs.h"
#include "front/session.h"

namespace norvik::erc {

/// Hangs FormListEMCs on a left click on PictureChangeRatio, and the list on the form's showing. It
/// reads the destination, leaves nothing on the disk, and keeps for each ratio the line that it
/// stands on.
void wireRatioListing(front::Session& session, FormListEMCs& form);

}  // namespace norvik::erc
