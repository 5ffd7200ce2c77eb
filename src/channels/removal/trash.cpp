#include "channels/removal/trash.h"

#include "channels/removal/morph_remove.h"
#include "channels/removal/part_remove.h"
#include "text/columns.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kChannels = "Channels";
constexpr std::string_view kActors = "Actors";

bool showsAllChannels(const front::Opening& opening) {
  return opening.ListChannels.item(0) == "ALL CHANNELS";
}

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
  if (showsAllChannels(opening)) opening.ListChannels.setDragging(false);
  if (text::begins(opening.ListChannels.item(0), "Channels for")) {
    opening.ListChannels.setDragging(true);
  }
  if (opening.DragOrigin == kActors) opening.ListActors.setDragging(true);
}

void pressOnActors(front::Opening& opening, front::Mouse mouse) {
  opening.DragOrigin = kActors;
  if (mouse.button != front::MouseButton::left) return;
  opening.ListActors.setDragging(opening.PictureTrash.active());
}

void pressOnChannels(front::Session& session, front::Mouse mouse) {
  front::Opening& opening = session.opening;
  opening.DragOrigin = kChannels;
  if (mouse.button != front::MouseButton::left) return;
  const bool armed = opening.PictureTrash.active();
  opening.ListChannels.setDragging(armed && !showsAllChannels(opening));
  if (armed && showsAllChannels(opening)) {
    session.front.messageBox(
        "Please choose a body part, to list just the channels for that part, before using this "
        "tool.",
        "Note!", front::kCritical);
  }
}

void refuseDrop(front::Session& session, std::string_view why) {
  session.front.messageBox(why, "Note!", front::kOk);
  restTrash(session.opening);
}

void removeDropped(front::Session& session) {
  front::Opening& opening = session.opening;
  if (opening.PictureViewChannels.active()) {
    if (opening.ListChannels.selection().empty()) {
      return refuseDrop(session, "If you are trying to remove a morph, choose one first.");
    }
    return MorphRemove(session);
  }
  if (opening.DragOrigin == kChannels) {
    if (opening.ListChannels.index() == 0) {
      return refuseDrop(session, "Choose a body part first, then the channel to be removed.");
    }
    // The trash stays armed.
    opening.ListChannels.setDragging(false);
    return;
  }
  opening.PictureJoints.rest();
  // The first item is not removed while it is the one clicked last.
  if (opening.DragOrigin == kActors && opening.ListActors.index() == 0) return;
  removeParts(session);
}

/// The key Delete as a drag of the list's selection to the trash.
void dropByKey(front::Session& session, front::ListBox& list) {
  if (!session.opening.PictureTrash.active() || list.selection().empty()) return;
  list.pressed.raise(front::Mouse{});
  if (list.dragging()) session.opening.PictureTrash.dropped.raise(list);
}

}  // namespace

void wireTrash(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.PictureTrash.released.add([&opening](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) toggleTrash(opening);
  });
  opening.ListActors.pressed.add([&opening](front::Mouse mouse) { pressOnActors(opening, mouse); });
  opening.ListChannels.pressed.add(
      [&session](front::Mouse mouse) { pressOnChannels(session, mouse); });
  opening.PictureTrash.dropped.add([&session](front::Control&) { removeDropped(session); });
  for (front::ListBox* list : {&opening.ListActors, &opening.ListChannels}) {
    list->key.add([&session, list](const std::string& key) {
      if (key == "Delete") dropByKey(session, *list);
    });
  }
}

void restTrash(front::Opening& opening) {
  opening.PictureTrash.rest();
  opening.ListChannels.setDragging(false);
  opening.ListActors.setDragging(false);
}

void tellUnconventional(front::Session& session) {
  session.front.messageBox("Unconventional CR2, cannot process.", "Error!", front::kOk);
}

}  // namespace norvik::channels
