#include "workshop/workshop.h"

#include "front/screen_scale.h"
#include "mesh/colour_book.h"

#include <initializer_list>

namespace norvik::obj {

Workshop::Workshop(front::Session& theSession, front::FormOBJ& theForm)
    : session(theSession), form(theForm) {
  form.loading.add([this] { restoreStart(); });
  for (front::OptionButton* option :
       {&form.OptionFrontView, &form.OptionSideView, &form.OptionTopView}) {
    option->clicked.add([this] { switchView(); });
  }
}

void Workshop::restoreStart() {
  form.restoreStart();
  front::scaleToScreen(session, form);
  form.makeSurfaces();
  mesh.clear();
  viewMode = ViewMode::front;
  Suppress = false;
  viewed = false;
  byGroups = false;
  fill = front::kBlack;
  fillWithout3D = front::kBlack;
  playing = false;
  random.seed(kSeed);
}

/// The mode follows the options; a flat view on show gives way to the chosen one, and so does a
/// body that has been turned and stands still.
void Workshop::switchView() {
  const bool givesWay = flatView(viewMode).visible() || (viewed && spin.SpinStopped);
  viewMode = chosenView();
  if (givesWay) showChosenView();
}

ViewMode Workshop::chosenView() const {
  if (form.OptionSideView.value()) return ViewMode::side;
  return form.OptionTopView.value() ? ViewMode::top : ViewMode::front;
}

front::PictureBox& Workshop::flatView(ViewMode mode) {
  return *form.flatViews().at(static_cast<std::size_t>(mode) - 1);
}

void Workshop::showAlone(const front::PictureBox& picture) {
  for (front::PictureBox* view : std::initializer_list<front::PictureBox*>{
           &form.PictureObjViewer2, &form.PictureOBJViewer, &form.PictureNoDX, &form.PictureUVMap,
           &form.PictureSecMap, &form.PictureZoom, &form.PictureStore, &form.PictureStore2,
           &form.PictureStore3}) {
    view->setVisible(view == &picture);
  }
}

void Workshop::showChosenView() {
  viewMode = chosenView();
  showAlone(flatView(viewMode));
}

void Workshop::colourFaces(front::Colour colour) {
  fill = colour;
  spin.diffuse = diffuseOf(colour);
}

void Workshop::closeMagnifier() {
  if (front::Form* magnifier = session.findForm("Magnifier")) session.unload(*magnifier);
}

void Workshop::setTitle(std::string_view path) {
  form.setCaption("OBJ Viewer " + std::string{path});
}

}  // namespace norvik::obj
