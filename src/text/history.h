#pragma once
// Old versions of the files that tools replace, delete and change.

#include "text/history_store.h"

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvik::text {

/// Keeps what goes from its place. It stands below the disk and no tool knows of it: whatever it
/// cannot do, the tool goes on.
class History {
 public:
  struct Limits {
    std::uint64_t entries = 200;
    std::uint64_t bytes = std::uint64_t{4} << 30U;
  };
  /// That a file has gone from its place. Nothing was kept if the entry's number is 0.
  using Listener = std::function<void(const HistoryEntry&)>;

  /// A file that is about to lose its content or its place.
  struct Old {
    std::string path;  ///< the system path in full
    std::string name;  ///< the host's, links followed if they are by what happens
    HostStatus status;
    Loss what = Loss::replaced;
    bool isLink = false;  ///< the name is a link's, which alone goes
  };

  /// Opens the store, a host folder.
  History(HostOps& host, std::string folder);
  History(const History&) = delete;
  History& operator=(const History&) = delete;

  void setClock(std::function<std::string()> now) { now_ = std::move(now); }
  /// Asked each time. No entries, or no bytes, are none at all: then nothing is kept.
  void setLimits(std::function<Limits()> limits) { limits_ = std::move(limits); }
  void setListener(Listener listener) { listener_ = std::move(listener); }
  /// The files of a host folder, by their names, that are the tools' own and not kept.
  void setScratchFiles(std::string folder, std::function<bool(std::string_view name)> isScratch);

  /// One act of the operator, while it lives. Files that come to be in its course are not old
  /// versions of anything, and of a file that is changed time and again the first state counts.
  class Act {
   public:
    /// Without a history it does nothing. Without a trigger's name it is of the act around it.
    Act(History* history, std::string_view trigger);
    Act(const Act&) = delete;
    Act& operator=(const Act&) = delete;
    ~Act();

   private:
    History* history_;
    std::string tool_;
    std::set<std::pair<std::uint64_t, std::uint64_t>> settled_;
  };

  /// Runs a step by which a file goes from its place or loses its content, having kept the file. If
  /// the step throws and the file stands as it was, the entry goes again.
  void losing(const Old& old, const std::function<void()>& step);

  /// Keeps a file that gets other bytes from now on.
  void beforeChange(const Old& old);

  /// Takes note of a file that was not there before.
  void noteMade(const std::string& name);

  /// The newest first.
  std::vector<HistoryEntry> entries() { return store_.entries(); }
  std::optional<HistoryEntry> find(std::uint64_t number) { return store_.find(number); }
  std::string fileOf(const HistoryEntry& entry) const { return store_.fileOf(entry); }
  const std::string& folder() const { return store_.folder(); }

 private:
  bool concerns(const Old& old);
  bool isScratch(const std::string& name) const;
  HistoryEntry keep(const Old& old, const Limits& limits);
  bool stands(const Old& old) const;
  void tell(const HistoryEntry& entry) const;
  Limits limits() const { return limits_ ? limits_() : Limits{}; }

  HostOps& host_;
  HistoryStore store_;
  std::function<std::string()> now_;
  std::function<Limits()> limits_;
  Listener listener_;
  std::string scratchFolder_;
  std::function<bool(std::string_view)> isScratchName_;
  std::string tool_;
  std::set<std::pair<std::uint64_t, std::uint64_t>> settled_;  ///< the files, by their numbers
};

}  // namespace norvik::text
