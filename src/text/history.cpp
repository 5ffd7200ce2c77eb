#include "text/history.h"

#include "text/file_error.h"
#include "text/host_names.h"

namespace norvik::text {

namespace {

std::pair<std::uint64_t, std::uint64_t> idOf(const HostStatus& file) {
  return {file.medium, file.serial};
}

bool areOneFile(const HostStatus& one, const HostStatus& other) {
  return one.kind != HostStatus::Kind::missing && one.serial != 0 && idOf(one) == idOf(other);
}

}  // namespace

History::History(HostOps& host, std::string folder) : host_(host), store_(host, std::move(folder)) {
  store_.open();
}

void History::setScratchFiles(std::string folder, std::function<bool(std::string_view)> isScratch) {
  scratchFolder_ = std::move(folder);
  isScratchName_ = std::move(isScratch);
}

History::Act::Act(History* history, std::string_view trigger) : history_(history) {
  if (history_ == nullptr) return;
  tool_ = history_->tool_;
  if (!trigger.empty()) history_->tool_ = trigger;
  settled_.swap(history_->settled_);
}

History::Act::~Act() {
  if (history_ == nullptr) return;
  history_->tool_ = std::move(tool_);
  history_->settled_ = std::move(settled_);
}

bool History::isScratch(const std::string& name) const {
  if (!isScratchName_ || !isScratchName_(lastName(name))) return false;
  const std::string folder = folderOf(name);
  HostStatus here;
  HostStatus programs;
  return folder == scratchFolder_ ||
         (host_.status(folder, here) == 0 && host_.status(scratchFolder_, programs) == 0 &&
          areOneFile(here, programs));
}

bool History::concerns(const Old& old) {
  const Limits most = limits();
  if (most.entries == 0 || most.bytes == 0 || old.status.kind != HostStatus::Kind::file) {
    return false;
  }
  if (old.name.starts_with(store_.folder() + "/") || settled_.contains(idOf(old.status))) {
    return false;
  }
  return !isScratch(old.name);
}

HistoryEntry History::keep(const Old& old, const Limits& most) {
  HistoryEntry entry;
  entry.when = now_ ? now_() : std::string{};
  entry.tool = tool_;
  entry.what = old.what;
  entry.path = old.path;
  entry.hostPath = old.name;
  entry.size = old.status.size;
  entry.mode = old.status.mode;
  if (entry.size > most.bytes) return entry;
  // The bytes under a name that stays, or that is not the only one, may change some day.
  const bool mayLink = old.what != Loss::changed && !old.isLink && old.status.names == 1;
  if (store_.add(entry, old.name, mayLink) == 0) store_.limit(most.entries, most.bytes);
  return entry;
}

/// Whether a file is where it was, as it was.
bool History::stands(const Old& old) const {
  std::string target;
  if (old.isLink) return host_.readLink(old.name, target) == 0;
  HostStatus now;
  return host_.status(old.name, now) == 0 && areOneFile(now, old.status) &&
         now.size == old.status.size;
}

void History::tell(const HistoryEntry& entry) const {
  if (listener_) listener_(entry);
}

void History::losing(const Old& old, const std::function<void()>& step) {
  // A file that is emptied must not take an old version with it.
  if (old.what == Loss::changed && old.status.names > 1) store_.separate(old.status);
  if (!concerns(old)) {
    step();
    if (old.what == Loss::deleted) settled_.erase(idOf(old.status));
    return;
  }
  const HistoryEntry kept = keep(old, limits());
  try {
    step();
  } catch (const FileError&) {
    if (kept.number != 0 && stands(old)) store_.drop(kept.number);
    throw;
  }
  if (old.what == Loss::changed) settled_.insert(idOf(old.status));
  tell(kept);
}

void History::beforeChange(const Old& old) {
  // It may have grown since it was opened.
  Old now = old;
  if (host_.status(old.name, now.status) != 0) now.status = old.status;
  losing(now, [] {});
}

void History::noteMade(const std::string& name) {
  HostStatus made;
  if (host_.status(name, made) == 0 && made.serial != 0) settled_.insert(idOf(made));
}

}  // namespace norvik::text
