#pragma once
// What a file is, by its extension.

#include <string_view>

namespace norvik::figure {

enum class FileKind { cr2, fc2, pz2, pz3, obj, bmp, hr2, pp2, mtl, other };

/// The kind told by the rightmost three characters of a path, without regard to case.
FileKind kindOf(std::string_view path);

/// What the open of a figure file does differently from kind to kind.
struct FigureRules {
  bool honoursRefusal;  ///< a refused line ending repair ends the open
  int scannedLines;     ///< among which a leading blank is looked for
  bool isProp;          ///< its first prop holds the main reference
};

/// The rules of a figure file; null for other kinds.
const FigureRules* figureRules(FileKind kind);

}  // namespace norvik::figure
