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
/// becomes a blank, "fo" becomes "f", and of two blanks behind "v" one is dropped, unless the
/// caller keeps them.
struct ObjLine {
  LineKind kind = LineKind::other;
  std::string_view text;
};

/// Normalises lines. What it returns is good until the next line, and no longer than the line that
/// it was given.
class LineNormaliser {
 public:
  enum class DoubleBlank { dropped, kept };
  explicit LineNormaliser(DoubleBlank behindVertex = DoubleBlank::dropped)
      : behindVertex_(behindVertex) {}

  ObjLine operator()(std::string_view line);

 private:
  ObjLine rewritten(LineKind kind, std::string_view start, std::string_view rest);
  ObjLine vertex(std::string_view line);

  DoubleBlank behindVertex_;
  std::string rewritten_;
};

/// The lesser normalising of a tool that copies a mesh line by line: one leading blank is dropped,
/// and a tab behind "v" or "vt" becomes a blank. Good until `buffer` changes.
std::string_view withoutTabs(std::string_view line, std::string& buffer);

/// A line's name: from the third column of a `g` line, and always from the eighth of a `use` line.
std::string_view groupName(std::string_view line);
std::string_view materialName(std::string_view line);

}  // namespace norvik::obj
