#include "obj/surgery/add_mesh.h"

#include "figure/check_sgi.h"
#include "obj/surgery/overlays.h"
#include "obj/surgery/second_mesh.h"
#include "obj/surgery/waiting.h"
#include "workshop/extents.h"
#include "workshop/reading.h"
#include "workshop/tool_controls.h"

#include <memory>

namespace norvik::obj {

namespace {

/// The overlays, which go again unless a mesh was read into them to its end; and with them the
/// merge, which a mesh that was read before has brought.
class NewOverlays {
 public:
  NewOverlays(Workshop& workshop, Overlays& overlays) : workshop_(workshop), overlays_(overlays) {
    overlays_.begin();
  }
  NewOverlays(const NewOverlays&) = delete;
  NewOverlays& operator=(const NewOverlays&) = delete;
  ~NewOverlays() {
    if (workshop_.form.AddMode) return;
    overlays_.end();
    workshop_.form.PictureMerge.hide();
    workshop_.form.PictureMerge.setEnabled(false);
    workshop_.showChosenView();
  }

 private:
  Workshop& workshop_;
  Overlays& overlays_;
};

bool chooseMesh(Workshop& workshop, std::string& path) {
  front::Session& session = workshop.session;
  front::CommonDialog& dialog = session.opening.CommonDialog1;
  if (!dialog.open(session.front, session.disk.currentFolder(), "Open Secondary OBJ",
                   {{}, front::kMeshFilter})) {
    return false;
  }
  path = dialog.fileName();
  session.offerToClearReadOnly(path);
  figure::CheckSGI(session, path);
  return true;
}

void hideViews(Workshop& workshop) {
  workshop.showChosenView();
  workshop.flatView(workshop.viewMode).hide();
  workshop.form.LabelSaveMap.hide();
}

/// Whether the second mesh was read to its end.
bool read(Workshop& workshop, Overlays& overlays, const std::string& path) {
  const Reading reading(workshop);
  const Waiting waiting(workshop.form);
  SecondMeshPass pass(workshop, overlays);
  overlays.showChosen();
  if (!pass.run(path)) return false;
  const Bounds& bounds = pass.bounds();
  showExtents(workshop.form, bounds.BiggestX, bounds.SmallestX, bounds.BiggestY);
  return true;
}

void addMesh(Workshop& workshop, Overlays& overlays) {
  if (workshop.reading) return;
  std::string path;
  if (!chooseMesh(workshop, path)) return;
  front::FormOBJ& form = workshop.form;
  workshop.closeMagnifier();
  hideViews(workshop);
  workshop.session.hourglass(true);
  form.AddMode = false;
  const NewOverlays placing(workshop, overlays);
  if (!read(workshop, overlays, path)) return;
  workshop.spin.SpinStopped = false;
  workshop.session.hourglass(false);
  form.AddMode = true;
  overlays.display();
  showTool(form.PictureMerge);
}

}  // namespace

void wireAddMesh(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  const auto overlays = std::make_shared<Overlays>(workshop);
  form.PictureAddOBJ.released.add([&workshop, overlays](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) addMesh(workshop, *overlays);
  });
  workshop.forgotten.add([overlays] { overlays->end(); });
  for (std::size_t view = 0; view < form.overlays().size(); ++view) {
    front::PictureBox& overlay = *form.overlays().at(view);
    overlay.pressed.add([overlays, view](front::Mouse mouse) { overlays->press(view, mouse); });
    overlay.moved.add([overlays, view](front::Mouse mouse) { overlays->drag(view, mouse); });
    overlay.released.add([overlays](front::Mouse) { overlays->release(); });
  }
  for (front::OptionButton* option :
       {&form.OptionFrontView, &form.OptionSideView, &form.OptionTopView}) {
    option->clicked.add([&workshop, overlays] {
      if (workshop.form.AddMode) overlays->showChosen();
    });
  }
}

}  // namespace norvik::obj
