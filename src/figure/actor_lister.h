#pragma once
// The lister of body parts.

#include "front/session.h"

#include <string>

namespace norvik::figure {

/// Lists the actors behind a figure's first figureResFile into ListActors, or into ListChannels
/// when the rightmost 20 characters of the two panes' captions differ. An entry is three blanks
/// (not for a name that holds BODY), the actor line from column 6, " *" and the line's number. A
/// storage section whose first actor has an empty line leaves one blank entry. A file without
/// figureResFile, but for poses, faces, props and hair, ends in a message. A read past the end is
/// thrown, inputPastEnd (62), with what was listed.
void ListTheActors(front::Session& session, const std::string& path);

}  // namespace norvik::figure
