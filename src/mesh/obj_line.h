#pragma once
// The lines of an OBJ file as the mesh tools see them.

#include <string>
#include <string_view>

namespace norvik::obj {

enum class LineKind {
  texturePoint,  ///< begins "vt"
  group,         ///< begins "g"
  material,      ///< begins "use"
  vertex,        ///< begins "v "
  face,          ///< begins "f "
  other,
};

/// A line after its normalising: one leading blank is dropped, a tab behind "v", "vt" or "f"
/// becomes a blank, "fo" becomes "f", and of two blanks behind "v" one is dropped.
struct ObjLine {
  LineKind kind = LineKind::other;
  std::string_view text;
};

/// Normalises lines. What it returns is good until the next line, and no longer than the line that
/// it was given.
class LineNormaliser {
 public:
  ObjLine operator()(std::string_view line);

 private:
  ObjLine rewritten(LineKind kind, std::string_view start, std::string_view rest);

  std::string rewritten_;
};

/// A line's name: from the third column of a `g` line, and always from the eighth of a `use` line.
std::string_view groupName(std::string_view line);
std::string_view materialName(std::string_view line);

}  // namespace norvik::obj
