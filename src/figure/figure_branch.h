#pragma once
// How a figure file is taken in and fills the panes.

#include "figure/file_kind.h"
#include "front/session.h"

#include <string>

namespace norvik::figure {

/// Whether a scan for leading blanks ends quietly with the file, or reads on into an error.
enum class ScanEnd { quiet, error };

/// Reads the first lines of a file; at a line that begins with a blank it stops and SpaceChopper
/// runs. With ScanEnd::error a file of fewer lines throws inputPastEnd (62).
void chopLeadingBlanks(front::Session& session, const std::string& path, int lines, ScanEnd end);

/// The branch of a figure file behind its line ending check: leading blanks are repaired, the
/// listers run, the panes are shown, and MenuCR2Tools is enabled. Throws what the listers and the
/// repair throw; what was listed by then stands.
void showFigure(front::Session& session, const std::string& path, FileKind kind, ScanEnd end);

}  // namespace norvik::figure
