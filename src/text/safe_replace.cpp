#include "text/safe_replace.h"

#include "text/classic_errors.h"
#include "text/host_names.h"

#include <cerrno>
#include <functional>
#include <vector>

namespace norvik::text {

namespace {

constexpr int kMostLinks = 40;

/// The new name stands by now, so an error must not read as if nothing had happened: then the name
/// is as safe as the file system makes it.
void syncFolderOf(HostOps& host, const std::string& name) {
  static_cast<void>(host.syncFolder(folderOf(name)));
}

int copyInto(HostFile& out, HostFile& in) {
  std::vector<char> buffer(kBlockSize);
  for (;;) {
    std::size_t got = 0;
    if (const int error = in.read(buffer.data(), buffer.size(), got); error != 0) return error;
    if (got == 0) return 0;
    if (const int error = out.write({buffer.data(), got}); error != 0) return error;
  }
}

/// Flushes a new file. One that is not whole does not stay.
int finish(HostOps& host, const std::string& name, std::unique_ptr<HostFile> file, int error) {
  if (error == 0) error = file->sync();
  file.reset();
  if (error != 0) static_cast<void>(host.remove(name));
  return error;
}

/// Makes a new file in the folder of `target` by `make`, which fails with EEXIST for a name that is
/// taken, and returns its name.
std::string createBeside(const std::string& target,
                         const std::function<int(const std::string&)>& make) {
  std::string name;
  int error = EEXIST;
  for (int attempt = 0; error == EEXIST; ++attempt) {
    name = target + ".norvik-" + std::to_string(attempt);
    error = make(name);
  }
  raise(error);
  return name;
}

}  // namespace

std::string followLinks(HostOps& host, std::string name) {
  for (int links = 0; links < kMostLinks; ++links) {
    std::string target;
    const int error = host.readLink(name, target);
    if (error == EINVAL || error == ENOENT) return name;  // no link, or nothing yet
    raise(error);
    name = target.starts_with('/') ? target : folderOf(name).append("/").append(target);
  }
  throw FileError(ErrorNumber::pathFileAccess);
}

int makeFile(HostOps& host, const std::string& name, std::string_view content) {
  std::unique_ptr<HostFile> file;
  if (const int error = host.open(name, HostOpenMode::createNew, file); error != 0) return error;
  const int error = file->write(content);
  return finish(host, name, std::move(file), error);
}

int copyFile(HostOps& host, const std::string& from, const std::string& to) {
  std::unique_ptr<HostFile> file;
  const int notCloned = host.clone(from, to);
  if (notCloned == EEXIST) return EEXIST;
  if (notCloned == 0) {
    const int error = host.open(to, HostOpenMode::read, file);
    return finish(host, to, std::move(file), error);
  }
  std::unique_ptr<HostFile> in;
  if (const int error = host.open(from, HostOpenMode::read, in); error != 0) return error;
  if (const int error = host.open(to, HostOpenMode::createNew, file); error != 0) return error;
  const int error = copyInto(*file, *in);
  return finish(host, to, std::move(file), error);
}

std::string copyBeside(HostOps& host, const std::string& source, const std::string& target) {
  HostStatus model;
  raise(host.status(source, model));
  std::string name =
      createBeside(target, [&](const std::string& made) { return copyFile(host, source, made); });
  keepIdentity(host, name, model);
  return name;
}

void keepIdentity(HostOps& host, const std::string& name, const HostStatus& model) {
  // Only the superuser may give a file away; then the owner is the one who saves.
  static_cast<void>(host.setOwner(name, model.owner, model.group));
  static_cast<void>(host.setMode(name, model.mode));
}

void addName(HostOps& host, const std::string& file, const std::string& name) {
  const int notLinked = host.link(file, name);
  if (notLinked == EEXIST) raise(EEXIST);
  if (notLinked != 0) {
    const std::string copy = copyBeside(host, file, name);
    if (const int error = host.renameNew(copy, name); error != 0) {
      static_cast<void>(host.remove(copy));
      raise(error);
    }
  }
  syncFolderOf(host, name);
}

void moveFile(HostOps& host, const std::string& from, const std::string& to, bool over) {
  const auto step = [&](const std::string& source) {
    return over ? host.renameOver(source, to) : host.renameNew(source, to);
  };
  const int error = step(from);
  if (error != EXDEV) {
    raise(error);
    syncFolderOf(host, to);
    return;
  }
  const std::string copy = copyBeside(host, from, to);
  if (const int failed = step(copy); failed != 0) {
    static_cast<void>(host.remove(copy));
    raise(failed);
  }
  syncFolderOf(host, to);
  const int notRemoved = host.remove(from);
  if (notRemoved == 0 || over) return;  // a file that was replaced cannot come back
  // A mere copy can go again, but only while the source is sure to stand.
  HostStatus source;
  const bool stands = host.status(from, source) == 0 && source.kind == HostStatus::Kind::file;
  if (!stands) return;
  static_cast<void>(host.remove(to));
  raise(notRemoved);
}

void replaceContent(HostOps& host, const std::string& name, std::string_view content) {
  const std::string target = followLinks(host, name);
  HostStatus old;
  raise(host.status(target, old));
  const std::string made = createBeside(
      target, [&](const std::string& beside) { return makeFile(host, beside, content); });
  if (old.kind != HostStatus::Kind::missing) keepIdentity(host, made, old);
  if (const int error = host.renameOver(made, target); error != 0) {
    static_cast<void>(host.remove(made));
    raise(error);
  }
  syncFolderOf(host, target);
}

}  // namespace norvik::text
