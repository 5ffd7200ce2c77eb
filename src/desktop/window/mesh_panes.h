#pragma once
// The parts of the mesh workshop's window.

#include "desktop/maker.h"
#include "front/form_obj.h"
#include "front/session.h"

namespace norvik::desktop {

/// The tools, in the order of the work: read, change, map, play. Where they have no room side by
/// side they stand in two rows.
QWidget* makeMeshTools(Maker& maker, front::FormOBJ& form, QWidget& parent);

/// The options of the views.
QWidget* makeMeshOptions(Maker& maker, front::FormOBJ& form, QWidget& parent);

/// What the window adds to the mirror and the merge: faces turned round, the second mesh moved by
/// numbers, the merged mesh under another name.
QWidget* makeMeshSurgery(Maker& maker, front::Session& session, front::FormOBJ& form,
                         QWidget& parent);

/// The box of the cut in numbers, for those who draw none; there while the cut is armed.
QWidget* makeLopRow(Maker& maker, front::FormOBJ& form, QWidget& parent);

/// The lists of groups and materials, the notes, and what the tools ask for.
QWidget* makeMeshLists(Maker& maker, front::Session& session, front::FormOBJ& form,
                       QWidget& parent);

}  // namespace norvik::desktop
