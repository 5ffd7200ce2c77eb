#pragma once
// A group or a material that is pointed out in the views of a mesh.

#include "graphics/surface.h"
#include "graphics/vertex.h"

#include <array>
#include <string>
#include <vector>

namespace norvik::front {

/// Lies over the views and is in none of their pictures: no tool reads it and none saves it.
struct MeshMark {
  bool materials = false;  ///< else a group
  std::string name;

  /// Front, side and top: the faces in red on white.
  std::array<graphics::Surface, 3> flat = {graphics::Surface(0, 0), graphics::Surface(0, 0),
                                           graphics::Surface(0, 0)};
  /// The triangles of the 3D view.
  std::vector<graphics::Vertex> corners = {};

  bool isOf(bool ofMaterials, const std::string& named) const {
    return materials == ofMaterials && name == named;
  }
};

/// A name that the operator points at.
struct MarkWanted {
  bool materials = false;
  std::string name;
};

}  // namespace norvik::front
