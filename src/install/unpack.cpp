#include "install/unpack.h"

#include "install/entry_name.h"
#include "install/shelf.h"
#include "install/zip_file.h"

#include <filesystem>
#include <vector>

namespace norvik::install {

namespace {

/// The folder that entries are unpacked into under names of our own, as long as it lives. What a
/// run has left there that came to no end goes first.
class RawFolder {
 public:
  explicit RawFolder(front::Session& session)
      : host_(session.disk.hostPath(session.opening.inProgramFolder("\\unpack.tmp"))) {
    clear();
    session.disk.makeFolder(session.opening.inProgramFolder("\\unpack.tmp"));
  }
  RawFolder(const RawFolder&) = delete;
  RawFolder& operator=(const RawFolder&) = delete;
  ~RawFolder() { clear(); }

  const std::string& host() const { return host_; }

 private:
  /// A link of that name goes, and nothing of what it leads to.
  void clear() const {
    std::error_code ignored;
    std::filesystem::remove_all(host_, ignored);
  }

  std::string host_;
};

/// An entry whose bytes are unpacked; a folder has none.
struct Raw {
  std::vector<std::string> steps;
  std::string name;
};

/// Puts an unpacked entry where it belongs. One that the host does not take there is left out.
void place(Shelf& shelf, const RawFolder& raws, const Raw& raw) {
  try {
    Shelf* way = &shelf;
    const auto end = raw.steps.end() - (raw.name.empty() ? 0 : 1);
    for (auto step = raw.steps.begin(); step != end; ++step) way = &way->folder(*step);
    if (!raw.name.empty()) way->take(raws.host() + "/" + raw.name, raw.steps.back());
  } catch (const text::FileError& error) {
    if (error.number() == text::ErrorNumber::diskFull) throw;
  }
}

/// Whether the zip says of itself that it keeps within the limits.
Unpacked foretold(const std::string& hostZip, const UnpackLimits& limits) {
  ZipFile zip(hostZip);
  ZipEntry entry;
  std::size_t entries = 0;
  std::uint64_t bytes = 0;
  while (zip.next(entry)) {
    ++entries;
    const bool counts = entry.kind == ZipEntry::Kind::file && entrySteps(entry.name);
    const std::uint64_t size = counts ? entry.size : 0;
    if (entries > limits.entries || size > limits.bytes - bytes) return Unpacked::tooMuch;
    bytes += size;
  }
  // Of one that is broken further on the front is unpacked.
  return zip.sound() || entries > 0 ? Unpacked::done : Unpacked::noZip;
}

/// Unpacks the bytes of all entries that may be. False when they are more than the zip said and
/// than they may be.
bool unpackRaw(front::Session& session, const std::string& hostZip, const RawFolder& raws,
               const UnpackLimits& limits, std::vector<Raw>& made) {
  ZipFile zip(hostZip);
  ZipEntry entry;
  std::uint64_t bytes = 0;
  while (zip.next(entry)) {
    const auto steps = entrySteps(entry.name);
    if (!steps || entry.kind == ZipEntry::Kind::other) continue;
    if (entry.kind == ZipEntry::Kind::folder) {
      made.push_back({*steps, {}});
      continue;
    }
    const std::string name = std::to_string(made.size());
    const ZipFile::Written written = zip.write(raws.host(), name, [&](std::uint64_t more) {
      session.front.pumpEvents();
      if (more > limits.bytes - bytes) return false;
      bytes += more;
      return true;
    });
    if (written == ZipFile::Written::refused) return false;
    if (written == ZipFile::Written::whole) made.push_back({*steps, name});
  }
  return true;
}

}  // namespace

Unpacked unpackZip(front::Session& session, const std::string& zip, const std::string& folder,
                   const UnpackLimits& limits) {
  if (!ZipFile::supported()) return Unpacked::notSupported;
  const std::string hostZip = session.disk.hostPath(zip);
  const Unpacked outcome = foretold(hostZip, limits);
  if (outcome != Unpacked::done) return outcome;

  const RawFolder raws(session);
  std::vector<Raw> made;
  if (!unpackRaw(session, hostZip, raws, limits, made)) return Unpacked::tooMuch;
  session.disk.makeFolders(folder);
  Shelf shelf(session.disk.hostPath(folder));
  for (const Raw& raw : made) place(shelf, raws, raw);
  return Unpacked::done;
}

}  // namespace norvik::install
