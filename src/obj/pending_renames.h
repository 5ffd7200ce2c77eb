#pragma once
// The renames that wait for the rewrite.

#include "obj/name_side.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::obj {

/// A line that holds it anywhere behind a rename is dropped, with what follows.
inline constexpr std::string_view kDropsName = "NULL";

/// The entries of ListGrpRen or ListMatRen, applied one after the other, each to the name that a
/// line has by then.
class PendingRenames {
 public:
  explicit PendingRenames(std::span<const std::string> entries);

  /// What a name becomes; nothing for one that no entry names.
  std::optional<std::string> newName(std::string_view name) const;
  /// The names as they will be, in the same order, without those that an empty box dropped.
  std::vector<std::string> newNames(std::span<const std::string> names) const;
  /// For each entry, whether it names any of these names when its turn comes.
  std::vector<bool> met(std::span<const std::string> names) const;

 private:
  struct Rename {
    std::string from;
    std::string to;
  };
  std::vector<Rename> renames_;
};

/// A side's names in its lists. Once one was renamed they are those of the mesh with all that
/// waits for the rewrite; before that, and behind another View, they are the mesh's own.
class NamesOnShow {
 public:
  explicit NamesOnShow(const NameSide& side)
      : renames_(side.asRead.empty() ? std::span<const std::string>{} : side.renames.items()) {}

  /// What a name of the mesh is on show as.
  std::string of(std::string_view name) const {
    return renames_.newName(name).value_or(std::string{name});
  }

 private:
  PendingRenames renames_;
};

/// An entry as it is read: "neck -> throat", "tail (drop)".
std::string renameInWords(std::string_view entry);

/// Takes an entry out of a side's pending renames and gives the names list the names that follow
/// from those that are left. A later entry that only the one taken back had made a name for goes
/// with it; what went so is returned.
std::vector<std::string> takeRenameBack(const NameSide& side, int index);

}  // namespace norvik::obj
