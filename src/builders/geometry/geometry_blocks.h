#pragma once
// What a figure says of an actor's alternate geometries.

#include "text/line_writer.h"

#include <string>
#include <string_view>

namespace norvik::builders {

/// The line behind which an actor's geometries stand, one block behind the other.
inline constexpr std::string_view kGeometryParent = "\tparent";
/// How the first line of such a block begins, and its last one.
inline constexpr std::string_view kGeometryLine = "\talternateGeom";
inline constexpr std::string_view kGeometryEnd = "\t\t}";

/// One more geometry of an actor.
struct AlternateGeometry {
  std::string actor;  ///< without its figure number
  std::string name;   ///< that of the OBJ, as the dial shows it
  std::string tail;   ///< the OBJ's path behind "Geometries"
};

/// The geometry of an OBJ that the operator picked for an actor, "head" or "head:1". The path must
/// hold "Geometries".
AlternateGeometry alternateGeometry(std::string_view actor, std::string_view objPath);

/// Writes the block that stands behind the actor's parent line.
void writeGeometry(text::LineWriter& out, const AlternateGeometry& geometry);

/// Writes the channel of the dial that switches between `count` geometries.
void writeGeometryChannel(text::LineWriter& out, std::string_view actor, int count);

/// The line with the dial's upper end.
std::string geometryCountLine(int count);

}  // namespace norvik::builders
