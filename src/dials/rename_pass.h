#pragma once
// All the dials and body parts of a file renamed.

#include "dials/renamed_line.h"
#include "text/disk.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::dials {

/// The scratch file, in the current folder.
inline constexpr std::string_view kScratch = "Dials.tmp";

/// Writes the file with its lines renamed as the scratch file and puts that in its place. Throws
/// FileError: the file is then as it was, and the scratch file keeps what was written. A file that
/// is the scratch file itself is refused before anything is touched.
void renameFile(text::Disk& disk, const std::string& path, Direction direction);

/// A line that will change.
struct LineChange {
  std::uint64_t line = 0;  ///< counted from 1
  std::string before;
  std::string after;
};

/// What a pass would do.
struct Preview {
  std::uint64_t changes = 0;
  std::vector<LineChange> first;  ///< the first of them
};

/// Looks at a file without touching it; keeps up to `most` lines. Throws FileError.
Preview previewOf(const text::Disk& disk, const std::string& path, Direction direction,
                  std::size_t most);

}  // namespace norvik::dials
