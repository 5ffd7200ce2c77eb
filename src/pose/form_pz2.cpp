#include "pose/form_pz2.h"

#include <initializer_list>

namespace norvik::pose {

namespace {

/// What is hidden until a tool shows it, or always.
void hideTheRest(FormPZ2& form) {
  for (front::Control* control : std::initializer_list<front::Control*>{
           &form.LabelMAT, &form.ListActorsWanted, &form.ListMaterialsMAT, &form.ListMATColors,
           &form.ListMaterialsMATWanted, &form.CheckAllMat, &form.CheckIncludeMaps,
           &form.CheckNoTrans, &form.CheckSetToWhite, &form.Frame1, &form.LabelChangeColor,
           &form.LabelPresent, &form.ShapePresentColor, &form.LabelNew, &form.ShapeNewColor}) {
    control->hide();
  }
  form.CheckNoTrans.setTip("When including maps, check this to make hair positioning easier.");
}

}  // namespace

FormPZ2::FormPZ2() : Form("FormPZ2", "PZ2 Editor") {
  hideTheRest(*this);
  start_.remember(*this);
  static_cast<void>(takeChanges());
}

void FormPZ2::restoreStart() {
  start_.restore();
  path.clear();
  propLine.clear();
  changedColours.clear();
  ++showings;
}

}  // namespace norvik::pose
