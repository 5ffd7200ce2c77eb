#pragma once
// CommandGo on FormTree: a body part and all below it out of a mesh.

#include "builders/phi/form_tree.h"
#include "front/session.h"

#include <string>
#include <vector>

namespace norvik::builders {

/// The names of the selected body part and of those below it: the items behind it up to the next
/// one that is no deeper. With nothing selected an empty name, and all items up to the first of
/// depth 0.
std::vector<std::string> branchNames(const front::ListBox& list);

/// Hangs the cut on CommandGo: the mesh named in LabelOBJFileName is written to "\Lop.txt" in the
/// program folder without the groups of those names, and the operator is asked where to save it. An
/// existing file is replaced only where its folder is the current one and its name is spelled as it
/// is on the disk; else it stays as it was and so does "\Lop.txt", without a word. After a cancel
/// the form stays as it is.
void wireCutBranch(front::Session& session, FormTree& form);

}  // namespace norvik::builders
