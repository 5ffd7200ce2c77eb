#pragma once
// The mesh that is placed over the one in view.

#include "mesh/face_pace.h"
#include "mesh/mesh_store.h"
#include "mesh/obj_line.h"
#include "mesh/vertex_text.h"
#include "obj/surgery/overlays.h"
#include "workshop/plan_points.h"
#include "workshop/workshop.h"

#include <string_view>
#include <vector>

namespace norvik::obj {

/// How far the second mesh reaches; every bound starts at 0.
struct Bounds {
  float BiggestX = 0;
  float SmallestX = 0;
  float BiggestY = 0;
  float BiggestZ = 0;
  float SmallestZ = 0;

  void take(const Position& at);
};

/// Reads a second mesh into its own record files and draws it into the overlays. It reads as the
/// first one is read, but a line that holds "use" anywhere is taken along as a material's line, a
/// texture point's record is its whole line, and two blanks behind "v" stay.
class SecondMeshPass {
 public:
  SecondMeshPass(Workshop& workshop, Overlays& overlays);
  SecondMeshPass(const SecondMeshPass&) = delete;
  SecondMeshPass& operator=(const SecondMeshPass&) = delete;

  /// Whether the pass came to the end: not when the operator has left the form meanwhile. An index
  /// without a vertex is FileError 9; the files hold what was read until then.
  bool run(std::string_view path);

  const Bounds& bounds() const { return bounds_; }

 private:
  bool addLine(std::string_view raw);
  void addFace(std::string_view line);

  Workshop& workshop_;
  Overlays& overlays_;
  MeshStore store_;
  FacePace pace_;
  LineNormaliser normalise_{LineNormaliser::DoubleBlank::kept};
  VertexCutter cut_;
  ViewScale scale_;
  PlanPoints corners_{scale_};
  std::vector<Position> vertices_;
  std::vector<std::size_t> indexes_;
  Bounds bounds_;
};

}  // namespace norvik::obj
