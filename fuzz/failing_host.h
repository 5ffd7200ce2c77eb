#pragma once
// A host that dies.

#include "text/host.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace norvik::fuzz {

/// Counts the operations that it passes on, until the one at which it dies: that one and all behind
/// it fail with EIO, and of a write that it meets the first half has arrived.
class FailingHost final : public text::HostOps {
 public:
  explicit FailingHost(text::HostOps& real) : real_(real) {}

  void dieAt(std::uint64_t operation) { deathAt_ = operation; }
  bool dead() const { return deathAt_ != 0 && operations_ >= deathAt_; }
  std::uint64_t operations() const { return operations_; }

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

 private:
  class File;
  template <typename Operation>
  int perform(Operation&& operation);

  text::HostOps& real_;
  std::uint64_t operations_ = 0;
  std::uint64_t deathAt_ = 0;
};

}  // namespace norvik::fuzz
