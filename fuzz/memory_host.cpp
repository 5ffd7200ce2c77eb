#include "memory_host.h"

#include <algorithm>
#include <cerrno>

namespace norvik::fuzz {

namespace {

std::string folderOf(const std::string& name) {
  const auto slash = name.find_last_of('/');
  return slash == 0 ? "/" : name.substr(0, slash);
}

class MemoryFile final : public text::HostFile {
 public:
  MemoryFile(std::shared_ptr<MemoryHost::Content> content, std::size_t readLimit)
      : content_(std::move(content)), readLimit_(readLimit) {}

  int read(char* into, std::size_t size, std::size_t& got) override {
    const std::string& bytes = content_->bytes;
    got = std::min({size, readLimit_, bytes.size() - std::min(at_, bytes.size())});
    std::copy_n(bytes.data() + at_, got, into);
    at_ += got;
    return 0;
  }

  int write(std::string_view bytes) override {
    std::string& all = content_->bytes;
    all.resize(std::max(all.size(), at_ + bytes.size()));
    std::copy(bytes.begin(), bytes.end(), all.data() + at_);
    at_ += bytes.size();
    return 0;
  }

  int seek(std::uint64_t offset) override {
    at_ = static_cast<std::size_t>(offset);
    return 0;
  }

  int size(std::uint64_t& bytes) override {
    bytes = content_->bytes.size();
    return 0;
  }

  int sync() override { return 0; }

 private:
  std::shared_ptr<MemoryHost::Content> content_;
  std::size_t readLimit_;
  std::size_t at_ = 0;
};

}  // namespace

void MemoryHost::addFolder(std::string_view name) {
  for (auto slash = name.find('/', 1); slash != std::string_view::npos;
       slash = name.find('/', slash + 1)) {
    folders_.emplace(name.substr(0, slash));
  }
  folders_.emplace(name);
}

void MemoryHost::addFile(const std::string& name, std::string_view bytes) {
  files_[name] = std::make_shared<Content>(Content{std::string{bytes}});
}

std::vector<std::string> MemoryHost::names() const {
  std::vector<std::string> names;
  names.reserve(files_.size());
  for (const auto& [name, content] : files_) names.push_back(name);
  return names;
}

std::string MemoryHost::bytesOf(const std::string& name) const {
  const auto found = files_.find(name);
  return found == files_.end() ? std::string{} : found->second->bytes;
}

int MemoryHost::open(const std::string& name, text::HostOpenMode mode,
                     std::unique_ptr<text::HostFile>& file) {
  using text::HostOpenMode;
  if (folders_.contains(name)) return EISDIR;
  const bool exists = has(name);
  if (mode == HostOpenMode::read && !exists) return ENOENT;
  if (mode == HostOpenMode::createNew && exists) return EEXIST;
  if (!exists && !folders_.contains(folderOf(name))) return ENOENT;
  if (!exists) addFile(name, "");
  const auto& content = files_[name];
  if (mode == HostOpenMode::write) content->bytes.clear();
  file = std::make_unique<MemoryFile>(content, readLimit_);
  if (mode == HostOpenMode::append) return file->seek(content->bytes.size());
  return 0;
}

int MemoryHost::status(const std::string& name, text::HostStatus& status) {
  status = {};
  if (folders_.contains(name)) {
    status.kind = text::HostStatus::Kind::folder;
    status.mode = 0755;
  } else if (const auto file = files_.find(name); file != files_.end()) {
    status.kind = text::HostStatus::Kind::file;
    status.size = file->second->bytes.size();
    status.mode = file->second->mode;
  }
  return 0;
}

int MemoryHost::list(const std::string& folder, std::vector<std::string>& names) {
  names.clear();
  if (!folders_.contains(folder)) return ENOENT;
  const auto add = [&](const std::string& name) {
    if (name != "/" && folderOf(name) == folder) {
      names.push_back(name.substr(name.find_last_of('/') + 1));
    }
  };
  for (const auto& [name, content] : files_) add(name);
  for (const auto& name : folders_) add(name);
  return 0;
}

int MemoryHost::readLink(const std::string& name, std::string&) {
  return has(name) || folders_.contains(name) ? EINVAL : ENOENT;
}

int MemoryHost::renameOver(const std::string& from, const std::string& to) {
  const auto file = files_.find(from);
  if (file == files_.end() || !folders_.contains(folderOf(to))) return ENOENT;
  if (folders_.contains(to)) return EISDIR;
  if (from == to) return 0;
  files_[to] = file->second;
  files_.erase(from);
  return 0;
}

int MemoryHost::renameNew(const std::string& from, const std::string& to) {
  return has(to) || folders_.contains(to) ? EEXIST : renameOver(from, to);
}

int MemoryHost::remove(const std::string& name) {
  return files_.erase(name) == 0 ? ENOENT : 0;
}

/// A file has one name here.
int MemoryHost::link(const std::string&, const std::string&) {
  return EPERM;
}

int MemoryHost::clone(const std::string& file, const std::string& name) {
  if (has(name) || folders_.contains(name)) return EEXIST;
  const auto found = files_.find(file);
  if (found == files_.end() || !folders_.contains(folderOf(name))) return ENOENT;
  files_[name] = std::make_shared<Content>(*found->second);
  return 0;
}

int MemoryHost::removeFolder(const std::string& name) {
  std::vector<std::string> names;
  if (list(name, names) != 0) return ENOENT;
  if (!names.empty()) return ENOTEMPTY;
  folders_.erase(name);
  return 0;
}

int MemoryHost::makeFolder(const std::string& name) {
  if (has(name) || folders_.contains(name)) return EEXIST;
  if (!folders_.contains(folderOf(name))) return ENOENT;
  folders_.insert(name);
  return 0;
}

int MemoryHost::setMode(const std::string& name, unsigned mode) {
  if (folders_.contains(name)) return 0;
  const auto file = files_.find(name);
  if (file == files_.end()) return ENOENT;
  file->second->mode = mode;
  return 0;
}

int MemoryHost::setOwner(const std::string&, unsigned, unsigned) {
  return 0;
}

int MemoryHost::syncFolder(const std::string&) {
  return 0;
}

}  // namespace norvik::fuzz
