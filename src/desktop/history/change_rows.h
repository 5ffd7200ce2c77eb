#pragma once
// The differences of two files as rows to look at.

#include "figure/sections.h"
#include "text/file_changes.h"
#include "text/host.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace norvik::desktop {

/// Rows that are read from the files when they are asked for: neither is held in memory, however
/// large.
class ChangeRows {
 public:
  enum class Kind { section, place, removed, added };
  struct Row {
    Kind kind = Kind::section;
    QString text;
  };

  /// Compares two host files; one that is not there has no lines.
  ChangeRows(std::string before, std::string after);

  std::uint64_t count() const { return starts_.back(); }
  Row row(std::uint64_t index) const;
  /// The changes, and the rows at which they begin.
  std::size_t changes() const { return changes_.size(); }
  std::uint64_t startOf(std::size_t change) const { return starts_[change]; }
  std::uint64_t removed() const { return removed_; }
  std::uint64_t added() const { return added_; }

 private:
  bool beginsSection(std::size_t change) const;
  Row rowOf(std::size_t change, std::uint64_t index) const;
  Row mentionRow(std::uint64_t index) const;

  std::unique_ptr<text::HostOps> host_;
  std::string before_;
  std::string after_;
  std::vector<text::Change> changes_;
  std::vector<figure::Mention> mentions_;
  std::vector<std::uint64_t> starts_;  ///< of the changes, of the mentions, and the end
  std::uint64_t removed_ = 0;
  std::uint64_t added_ = 0;
};

}  // namespace norvik::desktop
