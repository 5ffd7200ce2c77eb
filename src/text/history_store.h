#pragma once
// The folder in which old versions of files lie.

#include "text/history_entry.h"
#include "text/host.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace norvik::text {

/// A host folder that holds one folder an entry: "entry-00000017" with the old file under its own
/// name and "entry.txt". An entry is made under another name and renamed when it is whole, and
/// renamed back before it is taken apart, so that it is whole or not there wherever the process
/// ends. Several programs may use one store at a time.
///
/// An old file may be a further name of the host's file. Then no one may write to that file without
/// separate().
class HistoryStore {
 public:
  HistoryStore(HostOps& host, std::string folder);

  const std::string& folder() const { return folder_; }

  /// Makes the folder, if need be, and clears what earlier runs have left: entries half made or
  /// half gone, and entries of files that stand where they stood, since nothing took their place.
  void open();

  /// Keeps a file: as a further name of it if `mayLink` and the host can, else as a copy. Sets the
  /// entry's number, and its file, which is to be the name that the file had. Returns the host's
  /// error number; then there is no entry.
  int add(HistoryEntry& entry, const std::string& source, bool mayLink);

  /// The newest first, as they are in the folder now.
  std::vector<HistoryEntry> entries();
  std::optional<HistoryEntry> find(std::uint64_t number);

  /// The host's name of an entry's old file.
  std::string fileOf(const HistoryEntry& entry) const;

  /// Whether an entry's file is this one, under a further name.
  bool shares(const HistoryEntry& entry, const HostStatus& file) const;

  /// Gives the entries that share a file bytes of their own; one for which that fails goes, since
  /// it would not stay what it was.
  void separate(const HostStatus& file);

  /// Lets the oldest entries go until there are no more than these, in no more bytes; the newest
  /// stays.
  void limit(std::uint64_t entries, std::uint64_t bytes);

  /// Takes an entry away, if it can be.
  void drop(std::uint64_t number);

 private:
  void refresh();
  std::string nameOf(std::uint64_t number) const;
  int make(HistoryEntry& entry, const std::string& source, bool mayLink);
  int fill(const std::string& making, const HistoryEntry& entry, const std::string& source,
           bool& linked);
  std::optional<HistoryEntry> read(std::uint64_t number);
  void take(std::uint64_t number, std::string_view ending);
  void clear(const std::string& folder);

  HostOps& host_;
  std::string folder_;
  std::map<std::uint64_t, HistoryEntry> known_;
  std::uint64_t last_ = 0;  ///< the highest number that was seen
};

}  // namespace norvik::text
