#pragma once
// The controls of the tools that work on a mesh: out of reach while there is none.

#include "front/form_obj.h"

namespace norvik::obj {

/// Puts a tool's control on view and in reach.
void showTool(front::Control& control);

/// The tools that come with a mesh: those of the maps, the notes, the second mesh, and the lop
/// tools.
void showReadTools(front::FormOBJ& form);

/// Hides and disables all tools; the two list buttons stay on view.
void hideTools(front::FormOBJ& form);

}  // namespace norvik::obj
