#pragma once
// The two lists in which the channels of a body part are put in a new order.

#include "front/session.h"

#include <string>

namespace norvik::channels {

/// Shows the lists for an actor, all of its channels in the left one: every item of
/// ListChannelsReorder that begins with the actor's name, so that an actor whose name goes on
/// behind it brings its own along.
void showReorderLists(front::Opening& opening, const std::string& actor);

void hideReorderLists(front::Opening& opening);

/// Hangs the picking on the lists: a click moves an item to the end of the new order, and
/// OptionAlphabetize all that are left, by the alphabet. In the new order Alt+Up and Alt+Down move
/// the selected item, and Delete gives it back. Escape puts the lists away.
void wireReorderLists(front::Session& session);

}  // namespace norvik::channels
