#include "install/unpack.h"

#include "install/entry_name.h"
#include "install/shelf.h"
#include "install/zip_file.h"
#include "text/columns.h"

#include <algorithm>
#include <filesystem>
#include <span>
#include <utility>

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

/// Makes the folders of an entry and moves its file, if it has one, to its place. Of one that the
/// host does not take there no new folder stays.
void place(Shelf& shelf, std::span<const std::string> steps, const std::string& hostFile) {
  const std::string& name = steps.front();
  const bool last = steps.size() == 1;
  if (last && !hostFile.empty()) return shelf.take(hostFile, name);
  const bool isNew = !shelf.has(name);
  try {
    Shelf& below = shelf.folder(name);
    if (!last) place(below, steps.subspan(1), hostFile);
  } catch (const text::FileError&) {
    if (isNew) shelf.removeFolder(name);
    throw;
  }
}

/// Places all entries. One that the host does not take where it belongs is left out.
void placeAll(Shelf& shelf, const RawFolder& raws, const std::vector<Raw>& made) {
  for (const Raw& raw : made) {
    try {
      place(shelf, raw.steps, raw.name.empty() ? std::string{} : raws.host() + "/" + raw.name);
    } catch (const text::FileError& error) {
      if (error.number() != text::ErrorNumber::diskFull) continue;
      shelf.takeBack();
      throw;
    }
  }
}

/// The bytes of an unpacked zip file against its limits.
class Budget {
 public:
  Budget(const std::string& hostZip, const UnpackLimits& limits) : most_(limits.bytes) {
    std::error_code error;
    const std::uint64_t packed = std::filesystem::file_size(hostZip, error);
    const bool known = !error && packed <= limits.bytes / limits.ratio;
    mostOfDense_ = known ? std::max(packed * limits.ratio, limits.anyway) : limits.bytes;
  }

  /// Counts more bytes; false if they are too many for any zip file.
  bool spend(std::uint64_t bytes) {
    if (bytes > most_ - spent_) return false;
    spent_ += bytes;
    return true;
  }
  /// Whether they are too many for one of this size.
  bool tooDense() const { return spent_ > mostOfDense_; }

 private:
  std::uint64_t most_;
  std::uint64_t mostOfDense_ = 0;
  std::uint64_t spent_ = 0;
};

/// Whether the zip says of itself that it keeps within the limits.
Unpacked foretold(const std::string& hostZip, const UnpackLimits& limits) {
  ZipFile zip(hostZip);
  ZipEntry entry;
  Budget budget(hostZip, limits);
  std::size_t entries = 0;
  while (zip.next(entry)) {
    ++entries;
    const bool counts = entry.kind == ZipEntry::Kind::file && entrySteps(entry.name);
    const bool fits = !counts || budget.spend(entry.size);
    if (entries > limits.entries || !fits) return Unpacked::tooMuch;
  }
  if (budget.tooDense()) return Unpacked::tooDense;
  // Of one that is broken further on the front is unpacked.
  return zip.sound() || entries > 0 ? Unpacked::done : Unpacked::noZip;
}

/// Unpacks the bytes of all entries that may be. They may be more than the zip said.
Unpacked unpackRaw(front::Session& session, const std::string& hostZip, const RawFolder& raws,
                   const UnpackLimits& limits, std::vector<Raw>& made) {
  ZipFile zip(hostZip);
  ZipEntry entry;
  Budget budget(hostZip, limits);
  while (zip.next(entry)) {
    auto steps = entrySteps(entry.name);
    if (!steps || entry.kind == ZipEntry::Kind::other) continue;
    if (entry.kind == ZipEntry::Kind::folder) {
      made.push_back({std::move(*steps), {}});
      continue;
    }
    const std::string name = std::to_string(made.size());
    const ZipFile::Written written = zip.write(raws.host(), name, [&](std::uint64_t more) {
      session.front.pumpEvents();
      return budget.spend(more) && !budget.tooDense();
    });
    if (written == ZipFile::Written::refused) {
      return budget.tooDense() ? Unpacked::tooDense : Unpacked::tooMuch;
    }
    if (written == ZipFile::Written::whole) made.push_back({std::move(*steps), name});
  }
  return Unpacked::done;
}

/// Takes the folders out of the names.
void flatten(std::vector<Raw>& made) {
  std::erase_if(made, [](const Raw& raw) { return raw.name.empty(); });
  for (Raw& raw : made) raw.steps.erase(raw.steps.begin(), raw.steps.end() - 1);
}

}  // namespace

Unpacking::Unpacking(front::Session& session, std::string zip, std::string folder,
                     const UnpackLimits& limits)
    : session_(session), zip_(std::move(zip)), folder_(std::move(folder)), limits_(limits) {}

Unpacking::~Unpacking() = default;

Unpacked Unpacking::withFolders() {
  return run(Layout::folders);
}

Unpacked Unpacking::flat() {
  return run(Layout::flat);
}

Unpacked Unpacking::run(Layout layout) {
  if (!ZipFile::supported()) return Unpacked::notSupported;
  const std::string hostZip = session_.disk.hostPath(zip_);
  const Unpacked outcome = foretold(hostZip, limits_);
  if (outcome != Unpacked::done) return outcome;

  const RawFolder raws(session_);
  std::vector<Raw> made;
  const Unpacked written = unpackRaw(session_, hostZip, raws, limits_, made);
  if (written != Unpacked::done) return written;
  if (layout == Layout::flat) flatten(made);
  session_.disk.makeFolders(folder_);
  if (brought_) brought_->takeBack();
  brought_ = std::make_unique<Shelf>(session_.disk.hostPath(folder_));
  placeAll(*brought_, raws, made);
  return Unpacked::done;
}

std::vector<std::string> figuresInFolders(front::Session& session, const std::string& zip) {
  std::vector<std::string> figures;
  ZipFile file(session.disk.hostPath(zip));
  ZipEntry entry;
  while (file.next(entry)) {
    const auto steps = entrySteps(entry.name);
    const bool inside = entry.kind == ZipEntry::Kind::file && steps && steps->size() > 1;
    if (inside && text::equalIgnoringCase(text::rightmost(steps->back(), 4), ".cr2")) {
      figures.push_back(text::replaced(entry.name, '\\', '/'));
    }
  }
  return figures;
}

}  // namespace norvik::install
