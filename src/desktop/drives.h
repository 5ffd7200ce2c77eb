#pragma once
// The drives of the figure files' system on this one.

#include "desktop/options.h"
#include "text/disk.h"

#include <QString>

#include <string>

namespace norvik::desktop {

/// Mounts Z: on the root, C: on the Wine prefix's drive (WINEPREFIX, else ~/.wine) or, where there
/// is none, on a folder of the user's data, and then what the options say; makes the program folder
/// and enters the host's current folder. Throws workbench::BadOption for folders that cannot be
/// used.
void setUpDrives(text::Disk& disk, const Options& options, const std::string& programFolder);

/// The program folder without a backslash at its end.
std::string programFolderOf(const Options& options);

/// The settings file, with its folder made.
std::string settingsFileOf(const Options& options);

/// The folder that old versions of files are kept in, below the user's state folder; those above it
/// are made.
std::string historyFolder();

/// Whether a path begins with a drive that there is and a backslash or slash.
bool isSystemPath(const text::Disk& disk, std::string_view path);

/// The host path of a system path; empty for any other text, and for one that no file can have.
QString hostPathOf(const text::Disk& disk, const QString& path);

/// The system path of a path of either kind: a system path as it is, a host path, which may begin
/// in the current folder, by the drive that holds it, or as it stands when no drive does.
std::string systemPathOf(const text::Disk& disk, const std::string& path);

}  // namespace norvik::desktop
