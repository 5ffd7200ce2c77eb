#include "text/safe_replace.h"

#include "text/classic_errors.h"

#include <cerrno>
#include <functional>
#include <vector>

namespace norvik::text {

namespace {

constexpr int kMostLinks = 40;

std::string folderOf(const std::string& name) {
  const auto slash = name.find_last_of('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : name.substr(0, slash);
}

/// The new name stands by now, so an error must not read as if nothing had happened: then the name
/// is as safe as the file system makes it.
void syncFolderOf(HostOps& host, const std::string& name) {
  static_cast<void>(host.syncFolder(folderOf(name)));
}

/// Makes a new file in the folder of `target`, filled by `fill` and flushed, and returns its name.
std::string createBeside(HostOps& host, const std::string& target,
                         const std::function<int(HostFile&)>& fill) {
  std::unique_ptr<HostFile> file;
  std::string name;
  int error = EEXIST;
  for (int attempt = 0; error == EEXIST; ++attempt) {
    name = target + ".norvik-" + std::to_string(attempt);
    error = host.open(name, HostOpenMode::createNew, file);
  }
  raise(error);
  error = fill(*file);
  if (error == 0) error = file->sync();
  if (error != 0) {
    file.reset();
    static_cast<void>(host.remove(name));
  }
  raise(error);
  return name;
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

std::string copyBeside(HostOps& host, const std::string& source, const std::string& target) {
  HostStatus model;
  raise(host.status(source, model));
  std::unique_ptr<HostFile> in;
  raise(host.open(source, HostOpenMode::read, in));
  std::string name = createBeside(host, target, [&](HostFile& out) { return copyInto(out, *in); });
  keepIdentity(host, name, model);
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

void keepIdentity(HostOps& host, const std::string& name, const HostStatus& model) {
  // Only the superuser may give a file away; then the owner is the one who saves.
  static_cast<void>(host.setOwner(name, model.owner, model.group));
  static_cast<void>(host.setMode(name, model.mode));
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
  const std::string made =
      createBeside(host, target, [&](HostFile& file) { return file.write(content); });
  if (old.kind != HostStatus::Kind::missing) keepIdentity(host, made, old);
  if (const int error = host.renameOver(made, target); error != 0) {
    static_cast<void>(host.remove(made));
    raise(error);
  }
  syncFolderOf(host, target);
}

}  // namespace norvik::text
