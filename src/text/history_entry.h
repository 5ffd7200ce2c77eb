#pragma once
// What the history knows of a kept file.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::text {

/// How a file's content goes from its place.
enum class Loss {
  replaced,  ///< another file takes the place
  deleted,
  changed,  ///< the file stays and gets other bytes
};

/// "replaced", "deleted" or "changed".
std::string_view lossName(Loss loss);

struct HistoryEntry {
  std::uint64_t number = 0;  ///< of its folder; a higher one is newer
  std::string when;          ///< "YYYY-MM-DD HH:MM:SS"
  std::string tool;          ///< the name of the control that set the tool off
  Loss what = Loss::replaced;
  std::string path;      ///< the system path, as the tool had it
  std::string hostPath;  ///< links followed, but for one that was deleted itself
  std::string file;      ///< the old file's name in the entry's folder
  std::uint64_t size = 0;
  unsigned mode = 0;
};

/// The small text that lies beside the old file: a line a value, its name and a colon in front. A
/// byte below 32 and "%" stand as "%" and two hexadecimal digits.
std::string historyText(const HistoryEntry& entry);

/// The entry that a text tells of, less its number; none if it is not whole.
std::optional<HistoryEntry> parseHistoryText(std::string_view text);

}  // namespace norvik::text
