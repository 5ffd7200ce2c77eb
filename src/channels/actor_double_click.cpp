#include "channels/actor_double_click.h"

#include "channels/dials/reorder_lists.h"
#include "channels/mirror/mirror.h"
#include "figure/actor_entry.h"

namespace norvik::channels {

namespace {

void takePart(front::Session& session) {
  front::Opening& opening = session.opening;
  if (opening.ListActors.index() == front::ListBox::kNone) return;
  opening.ChosenPart = figure::actorName(opening.ListActors.chosen());
  if (opening.PictureMirror.visible()) return mirrorOnto(session, opening.ChosenPart);
  showReorderLists(opening, opening.ChosenPart);
}

}  // namespace

void wireActorDoubleClick(front::Session& session) {
  session.opening.ListActors.doubleClicked.add([&session] { takePart(session); });
}

}  // namespace norvik::channels
