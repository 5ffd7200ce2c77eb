#include "workshop/reset.h"

#include "front/scratch_files.h"
#include "workshop/spin.h"
#include "workshop/tool_controls.h"
#include "workshop/view.h"

#include <array>

namespace norvik::obj {

namespace {

constexpr auto kMapFiles = std::to_array<std::string_view>(
    {"\\UV.txt", "\\group.txt", "\\groupsave.txt", "\\groupvert.txt", "\\groupvertex.txt",
     "\\groupface.txt", "\\secmapsave.txt"});

void askForMesh(Workshop& workshop) {
  front::Session& session = workshop.session;
  front::Opening& opening = session.opening;
  if (!opening.CommonDialog1.open(session.front, session.disk.currentFolder(), {},
                                  {"Open a mesh", front::kMeshFilter})) {
    return;
  }
  opening.LabelOBJFileName.setCaption(opening.CommonDialog1.fileName());
  workshop.setTitle(opening.LabelOBJFileName.caption());
}

}  // namespace

void deleteMapFiles(front::Session& session) {
  front::deleteScratchFiles(session, kMapFiles);
}

void forgetMeshInView(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  deleteMapFiles(workshop.session);
  workshop.mesh.clear();
  workshop.viewed = false;
  workshop.byGroups = false;
  form.AddMode = false;
  form.RenamesPending = false;
  form.GroupsAsRead.clear();
  form.MaterialsAsRead.clear();
  form.MapDrawn = 0;
  form.MapSaved = 0;
  hideTools(form);
  for (front::ListBox* list :
       {&form.ListGroups, &form.ListMaterials, &form.ListGrpRen, &form.ListMatRen, &form.ListLop}) {
    list->clear();
  }
  form.OptionShowPolys.setValue(true);
  for (front::Control* control : form.controls()) {
    if (auto* picture = dynamic_cast<front::PictureBox*>(control)) picture->clear();
  }
  clearView(workshop);
  workshop.spin.SpinSpeed = 1;
  workshop.forgotten.raise();
}

void Reset(Workshop& workshop) {
  if (workshop.reading) return;
  forgetMeshInView(workshop);
  if (workshop.form.ReadParamObj) {
    View(workshop);
  } else {
    askForMesh(workshop);
  }
}

void viewAnew(Workshop& workshop) {
  forgetMeshInView(workshop);
  workshop.form.ReadAgain = true;
  View(workshop);
}

void wireReset(Workshop& workshop) {
  workshop.form.PictureNewFile.released.add([&workshop](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) Reset(workshop);
  });
}

}  // namespace norvik::obj
