#pragma once
// The screen under a glass. A click on PictureMagGlass of the mesh workshop shows the window; a
// timer keeps it live. The wheel of zoom is VScroll1, or Ctrl+F1 to Ctrl+F5; a right press on the
// image copies it to the clipboard, which is offered to be emptied on closing. Nothing is left on
// the disk.

#include "front/form_obj.h"
#include "front/session.h"
#include "tools/magnifier_form.h"

namespace norvik::tools {

void wireMagnifier(front::Session& session, front::FormOBJ& workshop, Magnifier& form);

}  // namespace norvik::tools
