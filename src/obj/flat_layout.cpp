#include "obj/flat_layout.h"

#include "mesh/face_corners.h"
#include "mesh/face_pace.h"
#include "mesh/face_tokens.h"
#include "mesh/mesh_store.h"
#include "mesh/obj_number.h"
#include "obj/map_sheet.h"
#include "text/columns.h"
#include "workshop/view_scale.h"

#include <algorithm>

namespace norvik::obj {

namespace {

/// Takes the next coordinate of a vertex off the front. As in the read of a mesh, one blank too
/// many in front of it does not count.
std::string_view takeCoordinate(std::string_view& rest) {
  if (text::begins(rest, " ")) rest.remove_prefix(1);
  const std::string_view coordinate = text::before(rest, " ");
  rest = text::from(rest, coordinate.size() + 2);
  return coordinate;
}

}  // namespace

FlatLayout::FlatLayout(Workshop& workshop)
    : workshop_(workshop),
      picture_(workshop.form.PictureUVMap),
      scale_(workshop.form, picture_),
      faces_(recordsOf(workshop.session, kFaceFile, kFaceRecordLength)),
      changedFaces_(workshop.session.disk, workshop.session.opening.inProgramFolder(kFaceFile),
                    kFaceRecordLength),
      vertices_(recordsOf(workshop.session, kVertexFile, kVertexRecordLength)) {}

bool FlatLayout::run() {
  const auto departures = workshop_.departures;
  FacePace pace(workshop_.session.front);
  const auto count = static_cast<std::uint64_t>(workshop_.mesh.FaceCount);
  for (std::uint64_t number = 1; number <= count; ++number) {
    const std::string_view record = text::trimmed(faces_.get(number));
    if (text::begins(record, "g")) beginGroup();
    if (!text::begins(record, "f")) continue;
    layFace(record);
    changedFaces_.put(number, newRecord_);
    pace.afterFace();
    if (workshop_.departures != departures) return false;
  }
  changedFaces_.close();
  return true;
}

void FlatLayout::beginGroup() {
  const bool later = ++GroupCount_ > 1;
  ShiftX_ = (later ? ShiftX_ : 0) + MinX_ * scale_.UVFactorX;
  ShiftRow_ = (later ? ShiftRow_ : 0) + MinY_ * scale_.UVFactorY;
  if (ShiftX_ > scale_.UVFactorX) ShiftRow_ = MinY_ * scale_.UVFactorY;
}

/// Draws a face and leaves its new record: the vertex index stands for the texture index too, and
/// what follows a second slash stays.
void FlatLayout::layFace(std::string_view record) {
  newRecord_ = "f ";
  bool first = true;
  for (FaceCorners corners(record); const auto corner = corners.next();) {
    const std::string index = indexText(vertexPart(*corner));
    newRecord_.append(index).append("/").append(index);
    const std::size_t slash = corner->rfind('/');
    if (slash != corner->npos && slash != corner->find('/')) newRecord_ += corner->substr(slash);
    newRecord_ += ' ';
    layCorner(indexNumber(index), first);
    first = false;
  }
}

void FlatLayout::layCorner(std::size_t vertex, bool first) {
  constexpr std::size_t kFirstOfX = 3;
  std::string_view rest = text::from(vertices_.get(vertex), kFirstOfX);
  const double x = static_cast<double>(leadingSingle(takeCoordinate(rest)));
  const double y = static_cast<double>(leadingSingle(takeCoordinate(rest)));
  if (first) {
    MinX_ = std::min(MinX_, x);
    MaxX_ = std::max(MaxX_, x);
    MinY_ = std::min(MinY_, y);
    MaxY_ = std::max(MaxY_, y);
  }
  const graphics::Point here{
      toPixel(x * scale_.UVFactorX + scale_.HalfX - ShiftX_),
      toPixel(scale_.height - (y * scale_.UVFactorY + scale_.ShiftY - ShiftRow_))};
  if (!first) picture_.surface().line(last_, here, front::kBlack);
  last_ = here;
  const double u = x / scale_.UVFactorX - scale_.HalfX + ShiftX_ / scale_.UVFactorX;
  coordinates_.set(vertex, toSingle(u), toSingle(y));
}

}  // namespace norvik::obj
