#pragma once
// What FormECM does when it is shown.

#include "erc/dialog_erc.h"
#include "erc/form_ecm.h"
#include "front/session.h"

namespace norvik::erc {

/// Shows the label of the chosen kind and its ratio, and lists the channels that it can begin with.
/// A destination without a figure's reference is inputPastEnd (62); the form then stays as far as
/// it came.
void openLinkForm(front::Session& session, const DialogERC& dialog, FormECM& form);

}  // namespace norvik::erc
