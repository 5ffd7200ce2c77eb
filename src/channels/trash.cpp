#include "channels/trash.h"

#include "text/columns.h"

namespace norvik::channels {

namespace {

void stopDragWithoutSelection(front::ListBox& list) {
  if (list.index() == front::ListBox::kNone) list.setDragging(false);
}

void toggleTrash(front::Opening& opening) {
  if (opening.PictureTrash.active()) {
    opening.PictureTrash.rest();
    stopDragWithoutSelection(opening.ListChannels);
    stopDragWithoutSelection(opening.ListActors);
    return;
  }
  opening.PictureTrash.activate();
  const auto view = opening.ListChannels.item(0);
  if (view == "ALL CHANNELS") opening.ListChannels.setDragging(false);
  if (text::begins(view, "Channels for")) opening.ListChannels.setDragging(true);
  if (opening.DragOrigin == "Actors") opening.ListActors.setDragging(true);
}

void pressOn(front::Opening& opening, front::ListBox& list, std::string_view origin,
             front::Mouse mouse) {
  opening.DragOrigin = origin;
  if (mouse.button == front::MouseButton::left) list.setDragging(opening.PictureTrash.active());
}

}  // namespace

void wireTrash(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.PictureTrash.released.add([&opening](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) toggleTrash(opening);
  });
  opening.ListChannels.pressed.add([&opening](front::Mouse mouse) {
    pressOn(opening, opening.ListChannels, "Channels", mouse);
  });
  opening.ListActors.pressed.add(
      [&opening](front::Mouse mouse) { pressOn(opening, opening.ListActors, "Actors", mouse); });
}

}  // namespace norvik::channels
