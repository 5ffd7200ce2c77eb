#include "pose/pz2_editor.h"

#include "pose/mat_lister.h"
#include "pose/part_lister.h"
#include "text/columns.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace norvik::pose {

namespace {

bool isKnownType(std::string_view extension) {
  constexpr std::array<std::string_view, 4> kTypes{"cr2", "pz3", "pp2", "hr2"};
  return std::find(kTypes.begin(), kTypes.end(), extension) != kTypes.end();
}

void showAll(std::initializer_list<front::Control*> controls) {
  for (front::Control* control : controls) control->show();
}

void beginInMatMode(FormPZ2& form) {
  showAll({&form.LabelMAT, &form.LabelPresent, &form.LabelNew, &form.ShapePresentColor,
           &form.ShapeNewColor, &form.CheckNoTrans});
}

/// A form that is on view already begins afresh where it is.
void open(front::Session& session, FormPZ2& form, bool matMode) {
  form.restoreStart();
  if (matMode) beginInMatMode(form);
  if (form.loaded()) {
    LoadIt(session, form);
  } else {
    session.load(form);
  }
}

}  // namespace

void LoadIt(front::Session& session, FormPZ2& form) {
  const std::string& path = session.opening.LabelFileNameForEditor.caption();
  const auto extension = text::extension(path);
  if (!isKnownType(extension)) {
    session.front.messageBox("CR2, PZ3, HR2 or PP2 files only!", "Error!", front::kExclamation);
    session.unload(form);
    return;
  }
  form.path = path;
  if (form.matMode()) {
    showAll({&form.CheckIncludeMaps, &form.CheckSetToWhite, &form.ListMaterialsMAT,
             &form.CheckAllMat, &form.Frame1, &form.LabelChangeColor});
    if (extension == "pp2") {
      ListMaterialsPP2MATPZ2(session, form);
    } else {
      ListMaterialsMATPZ2(session, form);
    }
  }
  form.LabelFNamePZ2.setCaption(form.path);
  session.hourglass(true);
  const int showing = form.showings;
  session.front.pumpEvents();
  if (form.showings == showing && ListTheActorsPZ2(session, form)) {
    form.setFocus(form.ListActorsPZ2);
  }
  session.hourglass(false);
}

void wirePz2Editor(front::Session& session, FormPZ2& form) {
  front::Opening& opening = session.opening;
  opening.MenuPoseFile.clicked.add([&session, &form] { open(session, form, false); });
  opening.menuMatFile.clicked.add([&session, &form] { open(session, form, true); });
  form.shown.add([&session, &form] { LoadIt(session, form); });
  form.unloading.add([&form] { form.restoreStart(); });
  form.ListActorsPZ2.doubleClicked.add([&form] {
    front::ListBox& parts = form.ListActorsPZ2;
    if (parts.index() == front::ListBox::kNone) return;
    form.ListActorsWanted.add(parts.chosen());
    parts.remove(parts.index());
  });
  form.LabelCancelPZ2.clicked.add([&session, &form] { session.unload(form); });
}

}  // namespace norvik::pose
