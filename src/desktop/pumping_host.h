#pragma once
// A host that lets the window live through long passes.

#include "text/host.h"

#include <chrono>
#include <functional>

namespace norvik::desktop {

/// Passes every operation on to another host. After a block was read or written, and not more often
/// than the eye can tell, it calls back, so that the window can repaint in the middle of a pass.
class PumpingHost : public text::HostOps {
 public:
  /// How far the file is read that was read last: bytes from its start, and its size.
  struct Progress {
    std::uint64_t position = 0;
    std::uint64_t size = 0;
  };
  using Pump = std::function<void(const Progress&)>;

  explicit PumpingHost(text::HostOps& host) : host_(host) {}
  void setPump(Pump pump) { pump_ = std::move(pump); }
  /// Who may end a pass, by an exception, after each read. Writes go through: they are also what
  /// an end leaves to be done.
  void setCheck(std::function<void()> check) { check_ = std::move(check); }

  int open(const std::string& name, text::HostOpenMode mode,
           std::unique_ptr<text::HostFile>& file) override;
  int status(const std::string& name, text::HostStatus& status) override {
    return host_.status(name, status);
  }
  int list(const std::string& folder, std::vector<std::string>& names) override {
    return host_.list(folder, names);
  }
  int readLink(const std::string& name, std::string& target) override {
    return host_.readLink(name, target);
  }
  int renameOver(const std::string& from, const std::string& to) override {
    return host_.renameOver(from, to);
  }
  int renameNew(const std::string& from, const std::string& to) override {
    return host_.renameNew(from, to);
  }
  int remove(const std::string& name) override { return host_.remove(name); }
  int link(const std::string& file, const std::string& name) override {
    return host_.link(file, name);
  }
  int clone(const std::string& file, const std::string& name) override {
    return host_.clone(file, name);
  }
  int removeFolder(const std::string& name) override { return host_.removeFolder(name); }
  int makeFolder(const std::string& name) override { return host_.makeFolder(name); }
  int setMode(const std::string& name, unsigned mode) override { return host_.setMode(name, mode); }
  int setOwner(const std::string& name, unsigned owner, unsigned group) override {
    return host_.setOwner(name, owner, group);
  }
  int syncFolder(const std::string& folder) override { return host_.syncFolder(folder); }

 private:
  friend class PumpedFile;
  void tick(const Progress& progress);

  text::HostOps& host_;
  Pump pump_;
  std::function<void()> check_;
  Progress read_;  ///< of the file that was read last
  std::chrono::steady_clock::time_point last_{};
};

}  // namespace norvik::desktop
