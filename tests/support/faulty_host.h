#pragma once
// A host on which things go wrong.

#include "text/host.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace norvik::tests {

/// What goes wrong, and how.
enum class Fault {
  none,
  error,      ///< the N-th operation fails, all others succeed
  unheard,    ///< the N-th operation is carried out and yet reported as failed
  fullDisk,   ///< of the N-th write half arrives; it and all later writes fail with ENOSPC
  killed,     ///< at the N-th operation the process dies; what was written stays
  powerLost,  ///< the same, and bytes that were written but not synced are gone
};

/// Passes the operations on to a real host and counts them, until the one that a fault is set for.
/// Every call on the host or on an open file is an operation, but for closing. Syncs are remembered
/// and not passed on: thousands of runs need not wait for the medium.
///
/// A death is played by letting all operations from the N-th on fail with EIO; a write that it
/// meets has half arrived. When the power goes, each file is cut back to the length that it had
/// when it was last synced, through whatever handle (a file that existed before counts as synced up
/// to its length then, one that was opened to be emptied as synced and empty). Names are harder
/// than bytes: a file that was made, renamed or removed stays so, since file systems keep the order
/// of such steps. That is the case that hurts when a renamed file was not synced.
///
///     FaultyHost host(*real);
///     host.setFault(Fault::error, n, ENOSPC);
///     ... host.faultMet()
class FaultyHost final : public text::HostOps {
 public:
  explicit FaultyHost(text::HostOps& real) : real_(real) {}
  FaultyHost(const FaultyHost&) = delete;
  FaultyHost& operator=(const FaultyHost&) = delete;
  ~FaultyHost() override;

  /// Sets what happens at the N-th operation from now (for fullDisk: the N-th write), N from 1.
  /// A host that died is alive again.
  void setFault(Fault fault, std::uint64_t n, int error = 0);
  void clearFault() { setFault(Fault::none, 0); }
  /// Whether the operation that the fault is set for came.
  bool faultMet() const { return met_; }
  std::uint64_t operations() const { return operations_; }
  /// Which of them since the fault was set were to change something: a file, a name, what is on the
  /// medium.
  const std::vector<std::uint64_t>& changes() const { return changes_; }

  /// From now on a rename from one folder to another fails as between two file systems, and so does
  /// a further name.
  void separateFolders() { foldersSeparate_ = true; }

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
  using FileId = std::pair<std::uint64_t, std::uint64_t>;  ///< device and number
  struct Unsynced {
    int descriptor;
    std::uint64_t syncedLength;
  };
  class File;

  int count();
  template <typename Operation>
  int perform(Operation&& operation);
  template <typename Operation>
  int change(Operation&& operation);
  void losePower();
  void watch(const std::string& name, const FileId& file, std::uint64_t length);
  void synced(const FileId& file);
  void forgetFiles();
  static FileId idOf(const std::string& name);
  bool acrossFolders(const std::string& from, const std::string& to) const;

  text::HostOps& real_;
  Fault fault_ = Fault::none;
  std::uint64_t at_ = 0;
  int error_ = 0;
  bool met_ = false;
  bool foldersSeparate_ = false;
  std::uint64_t operations_ = 0;
  std::uint64_t writes_ = 0;
  std::vector<std::uint64_t> changes_;
  std::map<FileId, Unsynced> unsynced_;
};

}  // namespace norvik::tests
