#pragma once
// The mesh in memory: what a read leaves beside the record files.

#include "graphics/vertex.h"

#include <cstddef>
#include <vector>

namespace norvik::obj {

/// A vertex of the mesh.
struct Position {
  float x = 0;
  float y = 0;
  float z = 0;
  bool operator==(const Position&) const = default;
};

/// The triangles that the 3D view draws: of each face the first three corners. Big meshes are
/// thinned, so that they stay drawable.
struct DisplayList {
  std::vector<graphics::Vertex> vertices;
  /// Counts the vertices that were added. A refresh writes the list again from its first entry
  /// while the count goes on rising.
  std::size_t DisplayCount = 0;
  std::size_t thinned = 0;  ///< faces met since the list is thinned
  /// Rises with every change of the list, for a device that keeps the vertices in its own memory.
  std::size_t revision = 0;
};

/// The counts are in single precision, as the record files' readers have them: they stand still at
/// 16777216.
struct Mesh {
  std::vector<Position> vertices;  ///< vertex 1 is the first
  float FaceCount = 0;             ///< `f` lines
  float RecordExtra = 0;           ///< `g` and `use` lines
  long TexCount = 0;               ///< `vt` lines
  bool HasUV = false;
  float BiggestX = 0;
  float SmallestX = 0;
  float BiggestY = 0;
  DisplayList display;

  /// Forgets everything and gives the memory back.
  void clear() {
    const auto revision = display.revision;
    *this = {};
    display.revision = revision + 1;
  }
};

}  // namespace norvik::obj
