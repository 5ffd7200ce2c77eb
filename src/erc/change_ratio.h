#pragma once
// FormListEMCs: another control ratio for a link.

#include "erc/form_list_emcs.h"
#include "front/session.h"

namespace norvik::erc {

/// Hangs the change on Enter in Text1: the text, whatever it is, takes the place of the ratio that
/// is selected in ListEMCs, through "\ChangeRatio.txt" in the program folder. The figure is
/// replaced after a Yes and a save dialog that chooses the figure itself; any other name saves
/// nothing and says nothing, as any error does, and the scratch file stays. A double click on
/// ListEMCs brings the selected ratio into Text1, behind the word "Ratio: ", and a click gives
/// Text1 the keys.
void wireChangeRatio(front::Session& session, FormListEMCs& form);

}  // namespace norvik::erc
