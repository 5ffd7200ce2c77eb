#pragma once
// The mesh without the faces of a lop box.

#include "mesh/colour_book.h"
#include "mesh/obj_line.h"
#include "obj/surgery/lop_colours.h"
#include "text/line_writer.h"
#include "workshop/plan_points.h"
#include "workshop/workshop.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::obj {

/// What of a mesh falls to a cut.
struct LopCount {
  std::size_t groups = 0;
  std::size_t faces = 0;
};

/// Walks over the mesh of LabelOBJFileName. A face goes when the colour of its group is listed in
/// ListLop and its first corner lies within the box; the others may lie anywhere. Faces that go are
/// painted red in the flat views. All vertices and texture points stay, out of the records of the
/// read; groups, materials and the other faces stay as they are written; every other line goes.
class LopPass {
 public:
  LopPass(Workshop& workshop, ViewMode lopView, const LopCorners& box);
  LopPass(const LopPass&) = delete;
  LopPass& operator=(const LopPass&) = delete;

  /// Writes what is left.
  void writeTo(const std::string& path);
  /// Writes nothing: only marks and counts what would go.
  LopCount preview();

 private:
  void run(text::LineWriter* out);
  void takeVertices();
  void writeTexturePoints();
  void takeSource();
  void take(const ObjLine& line);
  void takeGroup(std::string_view line);
  void takeFace(std::string_view line);
  bool isInside(const Position& at) const;
  void print(std::string_view line) {
    if (out_ != nullptr) out_->line(line);
  }

  Workshop& workshop_;
  ViewMode lopView_;
  LopCorners box_;
  ColourBook groupColours_;
  LopColours colours_;
  ViewScale scale_;
  PlanPoints corners_{scale_};
  text::LineWriter* out_ = nullptr;
  std::vector<Position> vertices_;  ///< with all their digits, as their records have them
  std::vector<std::size_t> indexes_;
  std::optional<std::string> group_;  ///< a `g` line that another one may follow
  front::Colour fill_;
  bool inList_ = false;
  bool cutInGroup_ = false;
  LopCount count_;
};

}  // namespace norvik::obj
