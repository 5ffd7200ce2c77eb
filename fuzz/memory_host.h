#pragma once
// A host without a disk: names and bytes in memory, so that a run costs no system call.

#include "text/host.h"

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

namespace norvik::fuzz {

/// Folders must be made before files go into them. Links and owners do not exist.
class MemoryHost final : public text::HostOps {
 public:
  /// Makes a folder and those above it.
  void addFolder(std::string_view name);
  void addFile(const std::string& name, std::string_view bytes);
  bool has(const std::string& name) const { return files_.contains(name); }
  /// The names of all files, in order.
  std::vector<std::string> names() const;
  /// The bytes of a file; empty for one that is not there.
  std::string bytesOf(const std::string& name) const;
  /// The most bytes that one read hands out: small ones put a block's border anywhere in a text.
  void limitReads(std::size_t bytes) { readLimit_ = bytes; }

  int open(const std::string& name, text::HostOpenMode mode,
           std::unique_ptr<text::HostFile>& file) override;
  int status(const std::string& name, text::HostStatus& status) override;
  int list(const std::string& folder, std::vector<std::string>& names) override;
  int readLink(const std::string& name, std::string& target) override;
  int renameOver(const std::string& from, const std::string& to) override;
  int renameNew(const std::string& from, const std::string& to) override;
  int remove(const std::string& name) override;
  int link(const std::string& file, const std::string& name) override;
  int clone(const std::string& file, const std::string& name) override;
  int removeFolder(const std::string& name) override;
  int makeFolder(const std::string& name) override;
  int setMode(const std::string& name, unsigned mode) override;
  int setOwner(const std::string& name, unsigned owner, unsigned group) override;
  int syncFolder(const std::string& folder) override;

  struct Content {
    std::string bytes;
    unsigned mode = 0644;
  };

 private:
  std::map<std::string, std::shared_ptr<Content>> files_;
  std::set<std::string> folders_{"/"};
  std::size_t readLimit_ = text::kBlockSize;
};

}  // namespace norvik::fuzz
