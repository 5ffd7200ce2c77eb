#include "text/disk.h"

#include "text/classic_errors.h"
#include "text/columns.h"
#include "text/file_names.h"
#include "text/host_names.h"
#include "text/safe_replace.h"
#include "text/wildcards.h"

#include <algorithm>

namespace norvik::text {

namespace {

char driveLetter(char c) {
  return raised({&c, 1})[0];
}

bool isSeparator(char c) {
  return c == '\\' || c == '/';
}

/// Adds the names of a path to `parts`, ".." taking one away.
void addParts(std::string_view path, std::vector<std::string>& parts) {
  while (!path.empty()) {
    const auto* const end = std::find_if(path.begin(), path.end(), isSeparator);
    const auto part = path.substr(0, static_cast<std::size_t>(end - path.begin()));
    path.remove_prefix(std::min(part.size() + 1, path.size()));
    if (part.empty() || part == ".") continue;
    if (part != "..") {
      parts.emplace_back(part);
    } else if (!parts.empty()) {
      parts.pop_back();
    }
  }
}

[[noreturn]] void raiseMissing(std::string_view path, bool folderExists) {
  throw FileError(folderExists ? ErrorNumber::fileNotFound : ErrorNumber::pathNotFound, path);
}

}  // namespace

std::string_view fileTitle(std::string_view path) {
  return path.substr(path.find_last_of('\\') + 1);
}

Disk::Disk(HostOps& host) : host_(host) {}

void Disk::mount(char drive, std::string hostFolder) {
  while (hostFolder.size() > 1 && hostFolder.ends_with('/')) hostFolder.pop_back();
  drives_[driveLetter(drive)] = std::move(hostFolder);
  if (currentFolder_.empty()) currentFolder_ = std::string{driveLetter(drive)} + ":\\";
}

bool Disk::hasDrive(char drive) const {
  return drives_.contains(driveLetter(drive));
}

Disk::Path Disk::parse(std::string_view path) const {
  if (path.empty() || path.find('\0') != std::string_view::npos) {
    throw FileError(ErrorNumber::pathFileAccess);
  }
  const bool network = path.size() > 1 && isSeparator(path[0]) && isSeparator(path[1]);
  if (network) throw FileError(ErrorNumber::pathNotFound);

  Path result{};
  std::string_view rest = path;
  const bool named = path.size() > 1 && path[1] == ':';
  if (named) rest.remove_prefix(2);
  result.drive = named                    ? driveLetter(path[0])
                 : currentFolder_.empty() ? '\0'
                                          : driveLetter(currentFolder_[0]);
  const bool fromRoot = !rest.empty() && isSeparator(rest[0]);
  if (!fromRoot && !currentFolder_.empty() && driveLetter(currentFolder_[0]) == result.drive) {
    addParts(from(currentFolder_, 3), result.parts);
  }
  addParts(rest, result.parts);
  return result;
}

Disk::Place Disk::locate(std::string_view path) const {
  return blaming(path, FileAct::unknown, [&] { return locate(parse(path)); });
}

Disk::Place Disk::locate(const Path& path) const {
  const auto drive = drives_.find(path.drive);
  if (drive == drives_.end()) throw FileError(ErrorNumber::pathNotFound);
  Place place;
  place.name = drive->second;
  raise(host_.status(place.name, place.status));
  for (const std::string& part : path.parts) {
    place.inFolder = place.status.kind == HostStatus::Kind::folder;
    std::string name = joined(place.name, part);
    place.status = {};
    if (place.inFolder) {
      raise(host_.status(name, place.status));
      std::vector<std::string> names;
      if (!place.exists() && host_.list(place.name, names) == 0) {
        // The one of the names that differ in case alone that comes first, always the same.
        std::sort(names.begin(), names.end());
        const auto found = std::find_if(names.begin(), names.end(), [&](const std::string& other) {
          return sameName(other, part);
        });
        if (found != names.end()) {
          name = joined(place.name, *found);
          raise(host_.status(name, place.status));
        }
      }
    }
    place.name = std::move(name);
  }
  return place;
}

Disk::Place Disk::locateExisting(std::string_view path) const {
  Place place = locate(path);
  if (!place.exists()) raiseMissing(path, place.inFolder);
  return place;
}

Disk::Place Disk::locateFile(std::string_view path) const {
  Place place = locateExisting(path);
  if (place.status.kind != HostStatus::Kind::file) {
    throw FileError(ErrorNumber::pathFileAccess, path);
  }
  return place;
}

Disk::Place Disk::locateWritable(std::string_view path) const {
  Place place = locate(path);
  if (!place.inFolder) throw FileError(ErrorNumber::pathNotFound, path);
  const bool refused = place.exists() && (place.status.kind != HostStatus::Kind::file ||
                                          (place.status.mode & kOwnerMayWrite) == 0);
  if (refused) throw FileError(ErrorNumber::pathFileAccess, path);
  return place;
}

void Disk::changeFolder(std::string_view path) {
  const Path parsed = blaming(path, FileAct::changingFolder, [&] {
    Path folder = parse(path);
    const bool stands = locate(folder).status.kind == HostStatus::Kind::folder;
    if (!stands) throw FileError(ErrorNumber::pathNotFound);
    return folder;
  });
  const char drive = path.size() > 1 && path[1] == ':' ? path[0] : currentFolder_[0];
  currentFolder_ = std::string{drive} + ":";
  for (const std::string& part : parsed.parts) currentFolder_ += "\\" + part;
  if (parsed.parts.empty()) currentFolder_ += '\\';
}

bool Disk::exists(std::string_view path) const {
  try {
    return locate(path).status.kind == HostStatus::Kind::file;
  } catch (const FileError&) {
    return false;
  }
}

bool Disk::folderExists(std::string_view path) const {
  try {
    return locate(path).status.kind == HostStatus::Kind::folder;
  } catch (const FileError&) {
    return false;
  }
}

std::uint64_t Disk::size(std::string_view path) const {
  return blaming(path, FileAct::lookingFor, [&] { return locateFile(path).status.size; });
}

bool Disk::areOneFile(const Place& one, const Place& other) const {
  if (one.status.serial == 0) return followLinks(host_, one.name) == followLinks(host_, other.name);
  return one.status.serial == other.status.serial && one.status.medium == other.status.medium;
}

bool Disk::isSameFile(std::string_view left, std::string_view right) const {
  try {
    return areOneFile(locateFile(left), locateFile(right));
  } catch (const FileError&) {
    return false;
  }
}

bool Disk::isReadOnly(std::string_view path) const {
  return blaming(path, FileAct::lookingFor,
                 [&] { return (locateExisting(path).status.mode & kOwnerMayWrite) == 0; });
}

std::string Disk::nameOnDisk(std::string_view path) const {
  const Place place = blaming(path, FileAct::lookingFor, [&] { return locate(path); });
  return place.exists() ? std::string{lastName(place.name)} : std::string{};
}

/// What there is of a kind in a folder; nothing in one that is none.
std::vector<std::string> Disk::namesIn(const Path& folder, HostStatus::Kind kind) const {
  const Place place = locate(folder);
  std::vector<std::string> names;
  if (place.status.kind == HostStatus::Kind::folder) raise(host_.list(place.name, names));
  std::erase_if(names, [&](const std::string& name) {
    HostStatus status;
    return host_.status(joined(place.name, name), status) != 0 || status.kind != kind;
  });
  sortNames(names);
  return names;
}

std::vector<std::string> Disk::matching(std::string_view pattern) const {
  return blaming(pattern, FileAct::lookingFor, [&] {
    Path path = parse(pattern);
    if (path.parts.empty()) return std::vector<std::string>{};
    const std::string wanted = std::move(path.parts.back());
    path.parts.pop_back();
    std::vector<std::string> names = namesIn(path, HostStatus::Kind::file);
    std::erase_if(names, [&](const std::string& name) { return !matchesWildcards(name, wanted); });
    return names;
  });
}

std::vector<std::string> Disk::foldersIn(std::string_view folder) const {
  return blaming(folder, FileAct::lookingFor,
                 [&] { return namesIn(parse(folder), HostStatus::Kind::folder); });
}

std::unique_ptr<HostFile> Disk::open(const std::string& name, HostOpenMode mode) const {
  std::unique_ptr<HostFile> file;
  raise(host_.open(name, mode, file));
  return file;
}

std::unique_ptr<HostFile> Disk::openForReading(std::string_view path) const {
  return blaming(path, FileAct::reading,
                 [&] { return open(locateFile(path).name, HostOpenMode::read); });
}

/// A path from its drive on, ".." and whatever else does not count left out.
std::string Disk::fullPath(std::string_view path) const {
  const Path parsed = parse(path);
  std::string result{parsed.drive};
  result += ':';
  for (const std::string& part : parsed.parts) result.append("\\").append(part);
  return result;
}

std::string Disk::inFull(std::string_view path) const {
  std::string result{path};
  const bool network = path.size() > 1 && isSeparator(path[0]) && isSeparator(path[1]);
  if (path.empty() || network || currentFolder_.empty() || path.find(':') != path.npos) {
    return result;
  }
  if (isSeparator(path[0])) return currentFolder_.substr(0, 2) + result;
  return currentFolder_ + (currentFolder_.ends_with('\\') ? "" : "\\") + result;
}

std::string Disk::hostPath(std::string_view path) const {
  return blaming(path, FileAct::lookingFor, [&] { return locate(path).name; });
}

std::optional<std::string> Disk::systemPath(std::string_view hostPath) const {
  const std::pair<const char, std::string>* closest = nullptr;
  for (const auto& drive : drives_) {
    const std::string& folder = drive.second;
    const bool within = hostPath == folder || folder == "/" || hostPath.starts_with(folder + "/");
    if (within && (closest == nullptr || folder.size() > closest->second.size())) closest = &drive;
  }
  if (closest == nullptr) return std::nullopt;
  std::string_view rest = hostPath;
  rest.remove_prefix(closest->second == "/" ? 0 : closest->second.size());
  while (rest.starts_with('/')) rest.remove_prefix(1);
  return std::string{closest->first} + ":\\" + replaced(rest, '/', '\\');
}

}  // namespace norvik::text
