#include "workshop/view.h"

#include "figure/check_sgi.h"
#include "mesh/low_mesh.h"
#include "mesh/obj_number.h"
#include "text/columns.h"
#include "text/number_text.h"
#include "workshop/extents.h"
#include "workshop/mesh_pass.h"
#include "workshop/mesh_path.h"
#include "workshop/morph_picture.h"
#include "workshop/reading.h"
#include "workshop/reset.h"
#include "workshop/spin.h"
#include "workshop/tool_controls.h"

#include <utility>

namespace norvik::obj {

namespace {

void startRead(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  form.CommandListGroups.setEnabled(true);
  form.CommandListMats.setEnabled(true);
  showTool(form.LabelMirror);
  if (form.OptionColorGroups.value()) {
    showTool(form.PictureLop);
    showTool(form.PicturePhiLopper);
  }
  clearView(workshop);
  workshop.showChosenView();
}

void forgetMesh(Workshop& workshop) {
  workshop.mesh.clear();
  workshop.viewed = false;
  workshop.form.MapDrawn = 0;
  workshop.form.MapSaved = 0;
  workshop.form.ListGroups.clear();
  workshop.form.ListMaterials.clear();
  workshop.form.Mark.reset();
  workshop.form.GroupsAsRead.clear();
  workshop.form.MaterialsAsRead.clear();
}

void refreshFlatViews(front::FormOBJ& form) {
  for (front::PictureBox* view : form.flatViews()) view->refresh();
}

/// Whether the read came to its end.
bool readInto(Workshop& workshop, const std::string& path) {
  const Reading reading(workshop);
  workshop.session.hourglass(true);
  workshop.form.ReadAgain = false;
  startRead(workshop);
  forgetMesh(workshop);
  MeshStore store(workshop.session);
  MeshPass pass(workshop, &store);
  if (!pass.run(path)) return false;
  store.close();
  refreshFlatViews(workshop.form);
  workshop.viewed = true;
  showExtents(workshop.form, workshop.mesh.BiggestX, workshop.mesh.SmallestX,
              workshop.mesh.BiggestY);
  return true;
}

/// What follows a read. The program's own rewriting of a low mesh is not rewritten again, however
/// low it still is.
void followUp(Workshop& workshop, const std::string& path, bool rewritten) {
  if (!rewritten && workshop.mesh.BiggestY < kLowMeshHeight) {
    rewriteLowMesh(workshop.session, path);
    workshop.session.hourglass(false);
    workshop.form.ReadParamObj = true;
    Reset(workshop);
    return;
  }
  workshop.session.hourglass(false);
  showReadTools(workshop.form);
  if (isMorph(workshop.session)) showMorph(workshop);
}

}  // namespace

void View(Workshop& workshop) {
  if (workshop.reading) return;
  front::Session& session = workshop.session;
  const bool settled = workshop.form.ReadAgain;
  if (!settled && !settleMeshPath(workshop)) return;
  std::string path = session.opening.LabelOBJFileName.caption();
  const bool rewritten = std::exchange(workshop.form.ReadParamObj, false);
  if (rewritten) {
    path = session.opening.inProgramFolder(kParamFile);
  } else if (!settled) {
    figure::CheckSGI(session, path);
  }
  if (readInto(workshop, path)) followUp(workshop, path, rewritten);
  session.hourglass(false);
}

void RefreshOBJ(Workshop& workshop) {
  if (workshop.reading) return;
  const Reading reading(workshop);
  workshop.session.hourglass(true);
  workshop.mesh.vertices.clear();
  MeshPass pass(workshop, nullptr);
  if (pass.run(workshop.session.opening.LabelOBJFileName.caption())) {
    refreshFlatViews(workshop.form);
  }
  workshop.session.hourglass(false);
}

void wireView(Workshop& workshop) {
  workshop.form.LabelView.clicked.add([&workshop] { View(workshop); });
}

}  // namespace norvik::obj
