#pragma once
// Programs and documents outside.

#include "text/disk.h"

#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace norvik::desktop {

/// Starts a command line of the figure files' system: a program of a drive through the program
/// loader for that system, the text editor through the desktop's own. Throws FileError 53 when the
/// program is not there or nothing can start it.
void startCommandLine(const text::Disk& disk, std::string_view commandLine);

/// Starts a program of a drive with arguments, each a system path or a word, and waits until it has
/// ended, while a small window offers to wait no longer. A program of this system starts by itself,
/// one of the figure files' system through the loader for that, its paths as that system has them.
/// False if nothing can start it.
bool runProgramToEnd(const text::Disk& disk, std::string_view program,
                     const std::vector<std::string>& arguments);

/// Opens a page or a document with what the desktop uses for it.
bool openWithDesktop(const text::Disk& disk, std::string_view target, std::string_view folder);

/// The host folder that the guide lies in; empty if it is not where an installation or the source
/// has it.
QString guideFolder();

}  // namespace norvik::desktop
