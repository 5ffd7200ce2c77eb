#pragma once
// The pass that takes one item of ListChannels out of a figure.

#include "channels/removal/removed_item.h"
#include "front/session.h"
#include "text/rewrite_pass.h"

#include <string>

namespace norvik::channels {

/// Copies the figure of a pass without the item. `actor` is the name of the part in view, with its
/// figure number.
///
/// A plain morph: every targetGeom entry behind the actor's second line and in front of the first
/// twist channel whose line holds the name, also as a part of another; an entry that directly
/// follows a removed one stays, and ends the search if it holds the name. There is no test for the
/// next actor. A link: the first block of five lines behind its morph's header that holds all
/// its values.
///
/// A search that comes to the end of the file is over, and the copy is whole. False when the morph
/// of a link is not in the file. Throws FileError when the file cannot be read or the copy not be
/// written.
bool removeItem(front::Session& session, text::RewritePass& pass, const RemovedItem& item,
                const std::string& actor);

}  // namespace norvik::channels
