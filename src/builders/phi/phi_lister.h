#pragma once
// The listing of FormTree.

#include "builders/phi/form_tree.h"
#include "front/session.h"

#include <string>
#include <string_view>

namespace norvik::builders {

/// Fills ListPhi with the body parts below the hip, out of the first run of actors of the figure
/// that the mesh on view belongs to. Where there is none on view the operator is asked for it, and
/// LabelFileNameForEditor takes the answer; after a cancel the list is empty. Throws FileError for
/// a figure that cannot be read or has no hip. Nothing changes on the disk.
void PhiLister(front::Session& session, FormTree& form);

/// Hangs the lister on the load of the form, which its unloading empties.
void wirePhiLister(front::Session& session, FormTree& form);

/// What an item of ListPhi says.
struct TreeItem {
  double depth = 0;
  std::string name;
};
TreeItem treeItem(std::string_view item);

}  // namespace norvik::builders
