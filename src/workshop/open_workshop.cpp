#include "workshop/open_workshop.h"

namespace norvik::obj {

void wireOpenWorkshop(Workshop& workshop) {
  front::Opening& opening = workshop.session.opening;
  opening.PictureOBJView.released.add([&workshop, &opening](front::Mouse mouse) {
    if (mouse.button != front::MouseButton::left) return;
    // A form that was loaded to play has nothing on show to read a mesh with.
    if (workshop.playing) workshop.session.unload(workshop.form);
    workshop.session.load(workshop.form);
    workshop.setTitle(opening.LabelOBJFileName.caption());
  });
}

}  // namespace norvik::obj
