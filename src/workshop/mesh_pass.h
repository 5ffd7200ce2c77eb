#pragma once
// One walk over the lines of a mesh.

#include "mesh/colour_book.h"
#include "mesh/face_pace.h"
#include "mesh/mesh_store.h"
#include "mesh/name_list.h"
#include "mesh/obj_line.h"
#include "mesh/vertex_text.h"
#include "workshop/face_views.h"

#include <string_view>
#include <vector>

namespace norvik::obj {

/// Reads a mesh line by line, keeps its vertices and bounds, and draws its faces as they come. With
/// a store it is a read: it writes the records, counts them, and adds names and colours. Without
/// one it is a refresh, which takes group colours only and passes over texture points and
/// materials.
class MeshPass {
 public:
  MeshPass(Workshop& workshop, MeshStore* store);

  /// Whether the pass came to the end: not when the operator has left the form meanwhile. An index
  /// without a vertex is FileError 9; what was built and stored until then stays.
  bool run(std::string_view path);

 private:
  void addLine(const ObjLine& line);
  void addTexturePoint(std::string_view line);
  void addGroup(std::string_view line);
  void addMaterial(std::string_view line);
  void addVertex(std::string_view line);
  void addFace(std::string_view line);

  Workshop& workshop_;
  MeshStore* store_;
  NameList groups_;
  NameList materials_;
  ColourBook groupColours_;
  ColourBook materialColours_;
  FaceViews views_;
  FacePace pace_;
  LineNormaliser normalise_;
  VertexCutter cut_;
  std::vector<std::size_t> indexes_;
};

}  // namespace norvik::obj
