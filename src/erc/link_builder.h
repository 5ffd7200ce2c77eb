#pragma once
// PictureEMC: links between channels, of ten kinds.

#include "erc/dialog_erc.h"
#include "erc/form_ecm.h"
#include "front/session.h"

namespace norvik::erc {

/// Hangs DialogERC on a left click on PictureEMC, and FormECM, with the walk that ends in a written
/// link, on the dialog's LabelDone. The dialog stays open behind the form, for the next kind. What
/// is written, and when, says writeLink.
void wireLinkBuilder(front::Session& session, DialogERC& dialog, FormECM& form);

}  // namespace norvik::erc
