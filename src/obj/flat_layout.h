#pragma once
// The mesh laid flat: the pass of Make UV over the face records.

#include "obj/invented_uv.h"
#include "text/record_file.h"
#include "text/record_reader.h"
#include "workshop/map_scale.h"
#include "workshop/workshop.h"

#include <string>
#include <string_view>

namespace norvik::obj {

/// Goes over the FaceCount records of faces, groups and materials once: moves on with each group,
/// gives each face the texture indexes of its vertices, draws it, and notes the coordinates of its
/// vertices.
class FlatLayout {
 public:
  explicit FlatLayout(Workshop& workshop);

  /// Whether it came to its end: not when the form was left meanwhile.
  bool run();
  const InventedUV& coordinates() const { return coordinates_; }

 private:
  void beginGroup();
  void layFace(std::string_view record);
  void layCorner(std::size_t vertex, bool first);

  Workshop& workshop_;
  front::PictureBox& picture_;
  MapScale scale_;
  text::RecordReader faces_;
  text::RecordFile changedFaces_;
  text::RecordReader vertices_;
  InventedUV coordinates_;
  std::string newRecord_;

  // The bounds of the first corners met so far, 0 among them: they only grow, so that MinX is never
  // above 0 and ShiftX only falls.
  double MinX_ = 0;
  double MaxX_ = 0;
  double MinY_ = 0;
  double MaxY_ = 0;
  int GroupCount_ = 0;
  double ShiftX_ = 0;
  double ShiftRow_ = 0;
  graphics::Point last_;
};

}  // namespace norvik::obj
