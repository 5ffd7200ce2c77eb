// What the disk does to the host's files. Wherever a file goes from its place or gets other bytes,
// the history is asked first.

#include "text/classic_errors.h"
#include "text/disk.h"
#include "text/file_names.h"
#include "text/history.h"
#include "text/host_names.h"
#include "text/safe_replace.h"

#include <cerrno>

namespace norvik::text {

namespace {

constexpr unsigned kAnyMayWrite = 0222;

/// A file that is open for more bytes. It is kept as it was before the first of them.
class ChangingFile final : public HostFile {
 public:
  ChangingFile(History& history, History::Old old, std::unique_ptr<HostFile> file)
      : history_(history), old_(std::move(old)), file_(std::move(file)) {}

  int read(char* into, std::size_t size, std::size_t& got) override {
    return file_->read(into, size, got);
  }
  int write(std::string_view bytes) override {
    if (!kept_) history_.beforeChange(old_);
    kept_ = true;
    return file_->write(bytes);
  }
  int seek(std::uint64_t offset) override { return file_->seek(offset); }
  int size(std::uint64_t& bytes) override { return file_->size(bytes); }
  int sync() override { return file_->sync(); }

 private:
  History& history_;
  History::Old old_;
  std::unique_ptr<HostFile> file_;
  bool kept_ = false;
};

}  // namespace

void Disk::setReadOnly(std::string_view path, bool readOnly) {
  blaming(path, FileAct::changingAttribute, [&] {
    const Place place = locateExisting(path);
    const unsigned mode = place.status.mode;
    raise(host_.setMode(place.name, readOnly ? mode & ~kAnyMayWrite : mode | kOwnerMayWrite));
  });
}

void Disk::makeFolder(std::string_view path) {
  blaming(path, FileAct::makingFolder, [&] {
    const Place place = locate(path);
    if (place.exists()) throw FileError(ErrorNumber::pathFileAccess);
    if (!place.inFolder) throw FileError(ErrorNumber::pathNotFound);
    raise(host_.makeFolder(place.name));
  });
}

void Disk::makeFolders(std::string_view path) {
  blaming(path, FileAct::makingFolder, [&] {
    const Path whole = parse(path);
    Path part{whole.drive, {}};
    for (const std::string& name : whole.parts) {
      part.parts.push_back(name);
      const Place place = locate(part);
      if (!place.exists()) raise(host_.makeFolder(place.name));
    }
    if (locate(whole).status.kind != HostStatus::Kind::folder) {
      throw FileError(ErrorNumber::pathFileAccess);
    }
  });
}

/// Runs a step by which the file at a place loses its content or goes; `name` is the file's own.
void Disk::losing(Loss what, const Place& place, const std::string& name, std::string_view path,
                  const std::function<void()>& step) {
  if (history_ == nullptr) return step();
  const bool isLink = what == Loss::deleted && followLinks(host_, name) != name;
  history_->losing({fullPath(path), name, place.status, what, isLink}, step);
}

void Disk::removeFolder(std::string_view path) {
  blaming(path, FileAct::deleting, [&] {
    const Place place = locate(path);
    const bool isFolder = place.status.kind == HostStatus::Kind::folder;
    if (!isFolder) throw FileError(ErrorNumber::pathNotFound);
    if (parse(path).parts.empty() || host_.removeFolder(place.name) != 0) {
      throw FileError(ErrorNumber::pathFileAccess);
    }
  });
}

void Disk::remove(std::string_view path) {
  blaming(path, FileAct::deleting, [&] {
    const Place place = locateFile(path);
    if ((place.status.mode & kOwnerMayWrite) == 0) throw FileError(ErrorNumber::pathFileAccess);
    losing(Loss::deleted, place, place.name, path, [&] { raise(host_.remove(place.name)); });
  });
}

void Disk::syncFile(const std::string& name, std::string_view path) const {
  blaming(path, FileAct::writing, [&] { raise(open(name, HostOpenMode::read)->sync()); });
}

void Disk::adoptIdentity(std::string_view file, std::string_view model) {
  ignoringErrors([&] {
    HostStatus status = locateFile(model).status;
    status.mode |= kOwnerMayWrite;
    keepIdentity(host_, locateFile(file).name, status);
  });
}

void Disk::rename(std::string_view from, std::string_view to) {
  // What the host says of the step itself is about the new name: the old one could be flushed.
  blaming(to, FileAct::moving, [&] {
    const Place source = locateExisting(from);
    const Place target = locate(to);
    if (!target.inFolder) throw FileError(ErrorNumber::pathNotFound);
    if (target.exists()) throw FileError(ErrorNumber::fileAlreadyExists);
    if (source.status.kind == HostStatus::Kind::file) syncFile(source.name, from);
    moveFile(host_, followLinks(host_, source.name), followLinks(host_, target.name), false);
  });
}

/// Gives a file the spelling of a path's last name, from which it differs in case alone.
void Disk::respell(const std::string& name, std::string_view path) {
  const std::string wanted =
      joined(name.substr(0, name.find_last_of('/')), parse(path).parts.back());
  // A spelling out of a figure file has single bytes for letters that the host's names have not.
  const bool fits = sameName(name, wanted) && isUtf8(wanted);
  // Should it fail, the file is whole under its old spelling.
  if (fits && name != wanted) static_cast<void>(host_.renameNew(name, wanted));
}

void Disk::replace(std::string_view scratch, std::string_view target) {
  blaming(target, FileAct::replacing, [&] {
    const Place old = locateWritable(target);
    if (!old.exists()) return rename(scratch, target);
    const Place made = locateFile(scratch);
    if (areOneFile(made, old)) return;
    syncFile(made.name, scratch);
    takePlace(made.name, old, target, old.status);
  });
}

/// Lets a file take another's place, with a mode and owner.
void Disk::takePlace(const std::string& made, const Place& old, std::string_view target,
                     const HostStatus& identity) {
  const std::string name = followLinks(host_, old.name);
  keepIdentity(host_, made, identity);
  losing(Loss::replaced, old, name, target, [&] { moveFile(host_, made, name, true); });
  // A link keeps its own name and its file's.
  if (name == old.name) respell(name, target);
}

void Disk::replaceKeeping(std::string_view scratch, std::string_view target,
                          std::string_view backup) {
  blaming(target, FileAct::replacing, [&] {
    const Place old = locateFile(target);
    const Place second = locate(backup);
    if (!second.inFolder) throw FileError(ErrorNumber::pathNotFound, backup);
    if (second.exists()) throw FileError(ErrorNumber::fileAlreadyExists, backup);
    const Place made = locateFile(scratch);
    if (areOneFile(made, old)) throw FileError(ErrorNumber::fileAlreadyOpen, scratch);
    syncFile(made.name, scratch);
    syncFile(old.name, target);
    const std::string name = followLinks(host_, old.name);
    const std::string kept = followLinks(host_, second.name);
    blaming(backup, FileAct::moving, [&] { addName(host_, name, kept); });
    Place shared = old;
    raise(host_.status(name, shared.status));
    HostStatus identity = old.status;
    identity.mode |= kOwnerMayWrite;
    try {
      takePlace(made.name, shared, target, identity);
    } catch (const FileError&) {
      // Two names of one file would change together.
      HostStatus now;
      const bool stands = host_.status(name, now) == 0 && now.serial == old.status.serial;
      if (stands) static_cast<void>(host_.remove(kept));
      throw;
    }
  });
}

void Disk::copy(std::string_view from, std::string_view to) {
  blaming(to, FileAct::writing, [&] {
    const Place source = blaming(from, FileAct::reading, [&] { return locateFile(from); });
    const Place old = locateWritable(to);
    if (old.exists() && areOneFile(source, old)) {
      throw FileError(ErrorNumber::fileAlreadyOpen, from);
    }
    const std::string name = followLinks(host_, old.name);
    const std::string made = copyBeside(host_, source.name, name);
    try {
      if (old.exists()) {
        takePlace(made, old, to, old.status);
      } else {
        moveFile(host_, made, name, false);
      }
    } catch (const FileError&) {
      static_cast<void>(host_.remove(made));
      throw;
    }
  });
}

void Disk::restore(const HistoryEntry& entry) {
  const auto path = systemPath(entry.hostPath);
  blaming(path ? *path : entry.path, FileAct::replacing, [&] {
    if (!path || history_ == nullptr) throw FileError(ErrorNumber::pathNotFound);
    const Place place = locate(*path);
    if (!place.inFolder) throw FileError(ErrorNumber::pathNotFound);
    const bool taken = place.exists() && place.status.kind != HostStatus::Kind::file;
    if (taken) throw FileError(ErrorNumber::pathFileAccess);
    const std::string name = followLinks(host_, place.name);
    const std::string made = copyBeside(host_, history_->fileOf(entry), name);
    HostStatus identity;
    static_cast<void>(host_.status(place.exists() ? name : made, identity));
    identity.mode = entry.mode;
    try {
      if (place.exists()) {
        takePlace(made, place, *path, identity);
      } else {
        keepIdentity(host_, made, identity);
        moveFile(host_, made, name, false);
      }
    } catch (const FileError&) {
      static_cast<void>(host_.remove(made));
      throw;
    }
  });
}

std::unique_ptr<HostFile> Disk::openWritable(std::string_view path, HostOpenMode mode) {
  return blaming(path, FileAct::writing, [&] {
    const Place place = locateWritable(path);
    if (history_ == nullptr) return open(place.name, mode);
    std::unique_ptr<HostFile> file;
    const auto opened = [&] { file = open(place.name, mode); };
    const std::string name = followLinks(host_, place.name);
    if (!place.exists()) {
      opened();
      history_->noteMade(name);
    } else if (mode == HostOpenMode::write) {
      losing(Loss::changed, place, name, path, opened);
    } else {
      opened();
      file = std::make_unique<ChangingFile>(
          *history_, History::Old{fullPath(path), name, place.status, Loss::changed},
          std::move(file));
    }
    return file;
  });
}

std::unique_ptr<HostFile> Disk::openForWriting(std::string_view path) {
  return openWritable(path, HostOpenMode::write);
}

std::unique_ptr<HostFile> Disk::openForAppending(std::string_view path) {
  return openWritable(path, HostOpenMode::append);
}

std::unique_ptr<HostFile> Disk::openForUpdating(std::string_view path) {
  return openWritable(path, HostOpenMode::update);
}

}  // namespace norvik::text
