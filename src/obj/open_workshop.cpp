#include "obj/open_workshop.h"

namespace norvik::obj {

void wireOpenWorkshop(Workshop& workshop) {
  front::Opening& opening = workshop.session.opening;
  opening.PictureOBJView.released.add([&workshop, &opening](front::Mouse mouse) {
    if (mouse.button != front::MouseButton::left) return;
    workshop.session.load(workshop.form);
    workshop.setTitle(opening.LabelOBJFileName.caption());
  });
}

}  // namespace norvik::obj
