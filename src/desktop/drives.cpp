#include "desktop/drives.h"

#include "desktop/words.h"
#include "text/columns.h"

#include <cstdlib>
#include <filesystem>

namespace norvik::desktop {

namespace {

namespace fs = std::filesystem;

/// A folder of the user: where a variable says, or below the home.
fs::path userFolder(const char* variable, const char* belowHome) {
  if (const char* named = std::getenv(variable); named != nullptr && *named == '/') return named;
  const char* home = std::getenv("HOME");
  return fs::path{home == nullptr ? "/tmp" : home} / belowHome;
}

fs::path driveC() {
  std::error_code ignored;
  const fs::path prefix = userFolder("WINEPREFIX", ".wine") / "drive_c";
  if (fs::is_directory(prefix, ignored)) return prefix;
  const fs::path own = userFolder("XDG_DATA_HOME", ".local/share") / "norvik" / "drive_c";
  fs::create_directories(own, ignored);
  return own;
}

bool names(const Options& options, char letter) {
  for (const auto& [drive, folder] : options.drives) {
    if ((drive & ~0x20) == letter) return true;
  }
  return false;
}

}  // namespace

std::string programFolderOf(const Options& options) {
  std::string folder = options.program.empty() ? "C:\\Norvik" : options.program;
  while (folder.ends_with('\\')) folder.pop_back();
  return folder;
}

void setUpDrives(text::Disk& disk, const Options& options, const std::string& programFolder) {
  disk.mount('Z', "/");
  if (!names(options, 'C')) disk.mount('C', driveC().string());
  for (const auto& [letter, folder] : options.drives) disk.mount(letter, folder);
  workbench::orBadOption("the program folder " + programFolder,
                         [&] { disk.makeFolders(programFolder); });

  std::error_code error;
  const auto current = fs::current_path(error);
  const auto folder = error ? std::nullopt : disk.systemPath(current.string());
  if (folder) text::ignoringErrors([&] { disk.changeFolder(*folder); });
}

std::string settingsFileOf(const Options& options) {
  const fs::path file = options.settings.empty()
                            ? userFolder("XDG_CONFIG_HOME", ".config") / "norvik" / "norvik.ini"
                            : fs::absolute(options.settings);
  std::error_code ignored;
  fs::create_directories(file.parent_path(), ignored);
  return file.string();
}

std::string historyFolder() {
  const fs::path folder = userFolder("XDG_STATE_HOME", ".local/state") / "norvik" / "history";
  std::error_code error;
  fs::create_directories(folder.parent_path(), error);
  // By the name that the host itself has for it, so that its files are known for what they are.
  const fs::path real = fs::weakly_canonical(folder, error);
  return error ? folder.string() : real.string();
}

bool isSystemPath(const text::Disk& disk, std::string_view path) {
  const bool formed = path.size() > 2 && path[1] == ':' && (path[2] == '\\' || path[2] == '/');
  return formed && disk.hasDrive(path[0]);
}

QString hostPathOf(const text::Disk& disk, const QString& path) {
  const std::string bytes = path.trimmed().toStdString();
  if (!isSystemPath(disk, bytes)) return {};
  QString host;
  text::ignoringErrors([&] { host = hostName(disk.hostPath(bytes)); });
  return host;
}

std::string systemPathOf(const text::Disk& disk, const std::string& path) {
  if (isSystemPath(disk, path)) return text::replaced(path, '/', '\\');
  std::error_code error;
  const auto whole = fs::absolute(path, error).lexically_normal();
  return error ? path : disk.systemPath(whole.string()).value_or(path);
}

}  // namespace norvik::desktop
