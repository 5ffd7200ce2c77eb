#pragma once
// The open of a file: from the menu, from the list of recent files, from the command line.

#include "front/session.h"

#include <string>

namespace norvik::figure {

/// Opens a file into the destination pane: the one that the operator chooses, or OpenedPath when
/// SkipOpenDialog is set. Pending path changes are offered to be saved first. On the disk only the
/// repairs leave something: line endings (CheckSGI), leading blanks (SpaceChopper), and the
/// read-only attribute if the operator wants it gone. Throws FileError for a file that cannot be
/// read.
void openFile(front::Session& session);

/// The same job for a path given at the start: cr2, pz3 and obj files alone, without the recent
/// list and the read-only question. A cr2 or pz3 of fewer than 100 lines, none of which
/// begins with a blank, throws inputPastEnd (62).
void ComStart(front::Session& session, std::string& path);

/// Hides what a file chosen anew makes stale: the lists of the channel reorder tool.
void leaveChannelReorder(front::Opening& opening);

/// Hangs the open on MenuFileOpen.
void wireOpen(front::Session& session);

}  // namespace norvik::figure
