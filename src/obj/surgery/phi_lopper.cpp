#include "obj/surgery/phi_lopper.h"

#include "workshop/reset.h"

namespace norvik::obj {

namespace {

void cutByListing(Workshop& workshop) {
  if (workshop.reading) return;
  front::Session& session = workshop.session;
  front::Form* const tree = session.findForm("FormTree");
  if (tree == nullptr) return;
  session.loadModal(*tree);
  const std::string& path = session.opening.LabelOBJFileName.caption();
  if (path.empty()) return;
  workshop.setTitle(path);
  viewAnew(workshop);
}

}  // namespace

void wirePhiLopper(Workshop& workshop) {
  workshop.form.PicturePhiLopper.released.add([&workshop](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) return cutByListing(workshop);
    workshop.session.front.messageBox(
        "Click this to bring up a phi listing. Click a part, then the icon, and all parts in the "
        "hierarchy below and including the chosen part will be removed.",
        "Info", front::kOk);
  });
}

}  // namespace norvik::obj
