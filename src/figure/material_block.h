#pragma once
// The material block of a figure: a line of a tab, "material " and the name, then one key a line
// between a line of two tabs and "{" and one of two tabs and "}".

#include "text/columns.h"
#include "text/line_reader.h"
#include "text/line_writer.h"

#include <string_view>

namespace norvik::figure {

inline constexpr std::string_view kMaterial = "material";
/// The line that a material begins with, up to its name.
inline constexpr std::string_view kMaterialLine = "\tmaterial";
/// The material that every figure may have and no list shows.
inline constexpr std::string_view kPreview = "Preview";

/// Reads by fields through the one that is exactly "figure". Throws FileError inputPastEnd (62) if
/// there is none.
void passToFigure(text::LineReader& in);

/// Whether a field begins a material; `presetMaterial` does not.
inline bool isMaterialField(std::string_view field) {
  return text::begins(field, kMaterial);
}
/// Whether a whole line begins a material.
inline bool isMaterialLine(std::string_view line) {
  return text::begins(line, kMaterialLine);
}
/// The material's name in a field.
inline std::string_view materialName(std::string_view field) {
  return text::from(field, 10);
}

/// Whether a line lies behind the materials of a figure.
inline bool endsMaterials(std::string_view line) {
  return text::holds(line, "preset") || text::holds(line, "displayMode");
}

/// Whether a line ends in one of the names, so that a name is also found at the end of a longer
/// one.
template <typename Names>
bool endsInOneOf(std::string_view line, const Names& names) {
  for (const auto& name : names) {
    if (text::rightmost(line, std::string_view{name}.size()) == name) return true;
  }
  return false;
}

/// Writes a material as the system makes one: white, without maps.
void writeDefaultMaterial(text::LineWriter& out, std::string_view name);

}  // namespace norvik::figure
