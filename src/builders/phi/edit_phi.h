#pragma once
// FormPhi: the lines of a phi file edited by hand, saved and printed.

#include "builders/phi/form_phi.h"
#include "front/session.h"

namespace norvik::builders {

/// Hangs the editor on its form: a double click on a line brings it into TextPhiEdit, one there
/// puts it back; LabelPhiSave writes the list over the file named in LabelPhiFileName, by way of
/// "\PhiEdit.txt" in the program folder; LabelPhiDone unloads the form; MenuPrint prints the list.
void wireEditPhi(front::Session& session, FormPhi& form);

/// Takes the last edit of a line back, and makes it again; the line is then selected. What is to be
/// saved stays on offer.
void undoEdit(FormPhi& form);
void redoEdit(FormPhi& form);

}  // namespace norvik::builders
