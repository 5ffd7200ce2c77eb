#include "install/shelf.h"

#include "install/entry_name.h"
#include "text/classic_errors.h"
#include "text/file_names.h"

#include <filesystem>
#include <utility>

namespace norvik::install {

namespace {

namespace fs = std::filesystem;

void orRaise(const std::error_code& error) {
  if (error) text::raise(error.value());
}

[[noreturn]] void refuse(const std::string& what) {
  throw text::FileError(text::ErrorNumber::pathFileAccess, what);
}

/// What a name is itself, not what a link leads to.
fs::file_type typeOf(const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::symlink_status(path, error);
  return status.type();
}

std::optional<fs::file_time_type> timeOf(const std::string& path) {
  std::error_code error;
  const fs::file_time_type time = fs::last_write_time(path, error);
  return error ? std::nullopt : std::optional{time};
}

void move(const std::string& from, const std::string& to) {
  std::error_code error;
  fs::rename(from, to, error);
  if (error != std::errc::cross_device_link) return orRaise(error);
  fs::copy_file(from, to, error);
  if (error && error != std::errc::file_exists) {
    // A piece of the file may stand there.
    std::error_code ignored;
    fs::remove(to, ignored);
  }
  orRaise(error);
  fs::remove(from, error);
}

}  // namespace

Shelf::Shelf(std::string hostFolder) : host_(std::move(hostFolder)) {
  std::error_code error;
  fs::directory_iterator entries(host_, error);
  orRaise(error);
  std::vector<std::string> names;
  for (; entries != fs::directory_iterator(); entries.increment(error)) {
    names.push_back(entries->path().filename().string());
  }
  orRaise(error);
  text::sortNames(names);
  for (const std::string& name : names) {
    const auto [known, isNew] = names_.try_emplace(text::foldedName(name), Known{name});
    if (!isNew) known->second.others.push_back(name);
  }
}

bool Shelf::has(const std::string& name) const {
  return names_.contains(text::foldedName(name));
}

Shelf& Shelf::folder(const std::string& name) {
  const auto [known, isNew] = names_.try_emplace(text::foldedName(name), Known{name});
  const std::string folder = path(known->second.name);
  if (isNew) {
    std::error_code error;
    fs::create_directory(folder, error);
    if (error) names_.erase(known);
    orRaise(error);
    known->second.made = true;
  } else if (typeOf(folder) != fs::file_type::directory) {
    refuse(name);
  }
  if (!known->second.shelf) known->second.shelf = std::make_unique<Shelf>(folder);
  return *known->second.shelf;
}

void Shelf::removeFolder(const std::string& name) {
  const auto known = names_.find(text::foldedName(name));
  if (known == names_.end()) return;
  const std::string folder = path(known->second.name);
  if (typeOf(folder) != fs::file_type::directory) return;
  std::error_code error;
  fs::remove(folder, error);
  if (!error) names_.erase(known);
}

void Shelf::makeRoom(Known& wanted) {
  std::vector<std::string> standing{wanted.name};
  standing.insert(standing.end(), wanted.others.begin(), wanted.others.end());
  for (const std::string& name : standing) {
    if (typeOf(path(name)) != fs::file_type::regular) refuse(name);
  }
  wanted.others.clear();
  std::optional<Time> taken = std::exchange(wanted.taken, std::nullopt);
  for (const std::string& name : standing) {
    keepUnderNumber(wanted, name, std::exchange(taken, std::nullopt));
  }
}

void Shelf::keepUnderNumber(Known& wanted, const std::string& name, std::optional<Time> taken) {
  std::string other;
  do {
    other = numberedName(name, ++wanted.numbered);
  } while (names_.contains(text::foldedName(other)));
  move(path(name), path(other));
  names_.try_emplace(text::foldedName(other), Known{other}).first->second.taken = taken;
}

void Shelf::take(const std::string& hostFile, const std::string& name) {
  const auto [known, isNew] = names_.try_emplace(text::foldedName(name), Known{name});
  if (!isNew) makeRoom(known->second);
  try {
    move(hostFile, path(name));
  } catch (const text::FileError&) {
    names_.erase(known);
    throw;
  }
  known->second.name = name;
  known->second.taken = timeOf(path(name));
}

void Shelf::takeBack() {
  for (auto& [folded, known] : names_) {
    if (known.shelf) known.shelf->takeBack();
    const std::string mine = path(known.name);
    const bool stillMine =
        known.taken && typeOf(mine) == fs::file_type::regular && timeOf(mine) == known.taken;
    const bool isFolder = known.made && typeOf(mine) == fs::file_type::directory;
    std::error_code ignored;
    if (stillMine || isFolder) fs::remove(mine, ignored);
  }
}

}  // namespace norvik::install
