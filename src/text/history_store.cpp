#include "text/history_store.h"

#include "text/file_names.h"
#include "text/host_names.h"
#include "text/safe_replace.h"

#include <cerrno>
#include <charconv>
#include <set>

namespace norvik::text {

namespace {

constexpr std::string_view kEntry = "entry-";
constexpr std::string_view kText = "entry.txt";
constexpr std::string_view kMaking = ".new";
constexpr std::string_view kGoing = ".old";
constexpr std::size_t kDigits = 8;
constexpr unsigned kForOwnerAlone = 0700;

/// The number of an entry's folder with this behind it; 0 for another name.
std::uint64_t numberOf(std::string_view name, std::string_view ending) {
  if (!name.starts_with(kEntry) || !name.ends_with(ending)) return 0;
  name.remove_prefix(kEntry.size());
  if (name.size() < kDigits + ending.size()) return 0;
  name.remove_suffix(ending.size());
  std::uint64_t number = 0;
  const char* const end = name.data() + name.size();
  const auto result = std::from_chars(name.data(), end, number);
  return result.ec == std::errc{} && result.ptr == end ? number : 0;
}

/// The bytes of a small file; none if it cannot be read.
std::optional<std::string> contentOf(HostOps& host, const std::string& name) {
  constexpr std::size_t kMost = 64 * 1024;
  std::unique_ptr<HostFile> file;
  if (host.open(name, HostOpenMode::read, file) != 0) return std::nullopt;
  std::string content(kMost, '\0');
  std::size_t size = 0;
  std::size_t got = 1;
  while (got > 0 && size < kMost) {
    if (file->read(content.data() + size, kMost - size, got) != 0) return std::nullopt;
    size += got;
  }
  content.resize(size);
  return content;
}

}  // namespace

HistoryStore::HistoryStore(HostOps& host, std::string folder)
    : host_(host), folder_(std::move(folder)) {
  while (folder_.size() > 1 && folder_.ends_with('/')) folder_.pop_back();
}

void HistoryStore::open() {
  HostStatus status;
  if (host_.status(folder_, status) == 0 && status.kind == HostStatus::Kind::missing &&
      host_.makeFolder(folder_) == 0) {
    // What was for the owner's eyes alone stays so.
    static_cast<void>(host_.setMode(folder_, kForOwnerAlone));
  }
  std::vector<std::string> names;
  if (host_.list(folder_, names) != 0) return;
  for (const std::string& name : names) {
    if (numberOf(name, kGoing) != 0) clear(joined(folder_, name));
    // Under its other name no program that is at it can make it whole any more.
    if (const auto number = numberOf(name, kMaking); number != 0) take(number, kMaking);
  }
  for (const HistoryEntry& entry : entries()) {
    const bool stands = host_.status(entry.hostPath, status) == 0 && shares(entry, status);
    if (stands) drop(entry.number);
  }
}

std::string HistoryStore::nameOf(std::uint64_t number) const {
  std::string digits = std::to_string(number);
  if (digits.size() < kDigits) digits.insert(0, kDigits - digits.size(), '0');
  return joined(folder_, std::string{kEntry} + digits);
}

std::string HistoryStore::fileOf(const HistoryEntry& entry) const {
  return joined(nameOf(entry.number), entry.file);
}

std::optional<HistoryEntry> HistoryStore::read(std::uint64_t number) {
  const auto text = contentOf(host_, joined(nameOf(number), kText));
  if (!text) return std::nullopt;
  auto entry = parseHistoryText(*text);
  if (entry) entry->number = number;
  return entry;
}

/// Other programs may have made entries, and let some go.
void HistoryStore::refresh() {
  std::vector<std::string> names;
  if (host_.list(folder_, names) != 0) return known_.clear();
  std::set<std::uint64_t> there;
  for (const std::string& name : names) {
    const std::uint64_t number = numberOf(name, {});
    if (number == 0) continue;
    last_ = std::max(last_, number);
    if (known_.contains(number)) {
      there.insert(number);
    } else if (auto entry = read(number)) {
      known_[number] = std::move(*entry);
      there.insert(number);
    }
  }
  std::erase_if(known_, [&](const auto& known) { return !there.contains(known.first); });
}

std::vector<HistoryEntry> HistoryStore::entries() {
  refresh();
  std::vector<HistoryEntry> result;
  for (auto known = known_.rbegin(); known != known_.rend(); ++known) {
    result.push_back(known->second);
  }
  return result;
}

std::optional<HistoryEntry> HistoryStore::find(std::uint64_t number) {
  refresh();
  const auto known = known_.find(number);
  if (known == known_.end()) return std::nullopt;
  return known->second;
}

int HistoryStore::fill(const std::string& making, const HistoryEntry& entry,
                       const std::string& source, bool& linked) {
  const std::string file = joined(making, entry.file);
  linked = linked && host_.link(source, file) == 0;
  if (!linked) {
    HostStatus model;
    if (const int error = host_.status(source, model); error != 0) return error;
    if (const int error = copyFile(host_, source, file); error != 0) return error;
    keepIdentity(host_, file, model);
  }
  return makeFile(host_, joined(making, kText), historyText(entry));
}

int HistoryStore::make(HistoryEntry& entry, const std::string& source, bool mayLink) {
  std::string making;
  int error = EEXIST;
  while (error == EEXIST) {
    making = nameOf(++last_).append(kMaking);
    error = host_.makeFolder(making);
  }
  if (error != 0) return error;
  bool linked = mayLink;
  error = fill(making, entry, source, linked);
  if (error == 0) {
    error = host_.renameNew(making, nameOf(last_));
    while (error == EEXIST) error = host_.renameNew(making, nameOf(++last_));
  }
  if (error != 0) {
    clear(making);
    return error;
  }
  // A link is as safe as the step that follows: both stand in the same file system, in this order.
  if (!linked) static_cast<void>(host_.syncFolder(folder_));
  entry.number = last_;
  return 0;
}

int HistoryStore::add(HistoryEntry& entry, const std::string& source, bool mayLink) {
  refresh();
  entry.file = lastName(source);
  if (sameName(entry.file, kText)) entry.file.insert(0, "_");
  int error = make(entry, source, mayLink);
  // Another program that has just started takes a half-made entry for one that was left.
  if (error == ENOENT) error = make(entry, source, mayLink);
  if (error == 0) known_[entry.number] = entry;
  return error;
}

bool HistoryStore::shares(const HistoryEntry& entry, const HostStatus& file) const {
  if (file.kind != HostStatus::Kind::file || file.serial == 0 || file.names < 2) return false;
  HostStatus kept;
  return host_.status(fileOf(entry), kept) == 0 && kept.serial == file.serial &&
         kept.medium == file.medium;
}

void HistoryStore::separate(const HostStatus& file) {
  for (const HistoryEntry& entry : entries()) {
    if (!shares(entry, file)) continue;
    const std::string name = fileOf(entry);
    const std::string own = name + std::string{kMaking};
    static_cast<void>(host_.remove(own));
    int error = copyFile(host_, name, own);
    if (error == 0) {
      keepIdentity(host_, own, file);
      error = host_.renameOver(own, name);
    }
    if (error != 0) drop(entry.number);
  }
}

void HistoryStore::limit(std::uint64_t entries, std::uint64_t bytes) {
  std::uint64_t size = 0;
  for (const auto& known : known_) size += known.second.size;
  while (known_.size() > 1 && (known_.size() > entries || size > bytes)) {
    const std::uint64_t oldest = known_.begin()->first;
    size -= known_.begin()->second.size;
    drop(oldest);
  }
}

void HistoryStore::drop(std::uint64_t number) {
  known_.erase(number);
  take(number, {});
}

/// Takes an entry's folder apart that has this behind its name.
void HistoryStore::take(std::uint64_t number, std::string_view ending) {
  const std::string name = nameOf(number) + std::string{ending};
  const std::string going = nameOf(number) + std::string{kGoing};
  // One that was left half gone under that name must not keep this one.
  if (host_.renameNew(name, going) == EEXIST) {
    clear(going);
    static_cast<void>(host_.renameNew(name, going));
  }
  clear(going);
}

void HistoryStore::clear(const std::string& folder) {
  std::vector<std::string> names;
  if (host_.list(folder, names) != 0) return;
  for (const std::string& name : names) static_cast<void>(host_.remove(joined(folder, name)));
  static_cast<void>(host_.removeFolder(folder));
}

}  // namespace norvik::text
