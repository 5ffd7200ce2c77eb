#include "obj/surgery/lop_pass.h"

#include "mesh/face_tokens.h"
#include "mesh/mesh_store.h"
#include "mesh/obj_number.h"
#include "mesh/record_walk.h"
#include "obj/surgery/merge_lines.h"
#include "text/columns.h"
#include "text/line_reader.h"

#include <algorithm>

namespace norvik::obj {

namespace {

/// A number off the front, with the blanks around it. One beyond single precision is infinite; it
/// counts only when a face asks for it.
float takeNumber(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  const std::string_view word = text::before(text, " ");
  text.remove_prefix(word.size());
  return static_cast<float>(leadingNumber(word));
}

Position positionIn(std::string_view record) {
  constexpr std::size_t kBehindV = 2;
  std::string_view rest = text::from(record, kBehindV);
  Position at;
  at.x = takeNumber(rest);
  at.y = takeNumber(rest);
  at.z = takeNumber(rest);
  return at;
}

}  // namespace

LopPass::LopPass(Workshop& workshop, ViewMode lopView, const LopCorners& box)
    : workshop_(workshop),
      lopView_(lopView),
      box_(box),
      groupColours_(workshop.form.ListGroupColors),
      colours_(workshop.form.ListLop),
      scale_(workshop.form),
      fill_(workshop.fill) {}

void LopPass::writeTo(const std::string& path) {
  text::LineWriter out(workshop_.session.disk, path);
  run(&out);
  out.close();
}

LopCount LopPass::preview() {
  run(nullptr);
  return count_;
}

void LopPass::run(text::LineWriter* out) {
  out_ = out;
  takeVertices();
  if (out_ != nullptr) writeTexturePoints();
  takeSource();
}

void LopPass::takeVertices() {
  for (RecordWalk walk(workshop_.session, kVertexFile, kVertexRecordLength); walk.next();) {
    const std::string_view record = text::trimmed(walk.record());
    vertices_.push_back(positionIn(record));
    if (text::holds(record, "v")) print(record);
  }
}

void LopPass::writeTexturePoints() {
  for (RecordWalk walk(workshop_.session, kTextureFile, kTextureRecordLength); walk.next();) {
    if (text::holds(walk.record(), "*")) print(texturePointLine(walk.record()));
  }
}

void LopPass::takeSource() {
  static const text::LineFilter looked{text::atStart(" "), text::atStart("g"), text::atStart("use"),
                                       text::atStart("f")};
  LineNormaliser normalise;
  text::LineReader in(workshop_.session.disk, workshop_.session.opening.LabelOBJFileName.caption());
  for (;;) {
    const auto before = in.position();
    in.passLines(looked);
    const bool lineBetween = in.position() != before;
    if (in.atEnd()) break;
    const ObjLine line = normalise(in.line());
    const bool group = line.kind == LineKind::group;
    // Right in front of another one it has no faces.
    if (group_ && (lineBetween || !group)) takeGroup(*group_);
    group_.reset();
    if (group) {
      group_ = line.text;
    } else {
      take(line);
    }
  }
  if (group_) takeGroup(*group_);
}

void LopPass::take(const ObjLine& line) {
  if (line.kind == LineKind::material) print(line.text);
  if (line.kind == LineKind::face) takeFace(line.text);
}

void LopPass::takeGroup(std::string_view line) {
  if (const auto colour = groupColours_.find(line)) fill_ = *colour;
  // In other colours nothing in the box tells a group.
  inList_ = workshop_.byGroups && colours_.holds(fill_);
  cutInGroup_ = false;
  print(line);
}

void LopPass::takeFace(std::string_view line) {
  bool inside = false;
  if (inList_) {
    readFaceTokens(line, indexes_);
    inside = !indexes_.empty() && isInside(vertexAt(vertices_, indexes_.front()));
  }
  if (!inside) {
    print(line);
    return;
  }
  ++count_.faces;
  if (!cutInGroup_) ++count_.groups;
  cutInGroup_ = true;
  corners_.place(workshop_.mesh.vertices, indexes_);
  corners_.draw(workshop_.form.flatViews(), kGoneRed);
}

/// In the plane of the view that the box was drawn in. In the top view a vertex behind the middle
/// is tested in a place where it is not drawn.
bool LopPass::isInside(const Position& at) const {
  graphics::Point point = scale_.frontPoint(at);
  if (lopView_ == ViewMode::side) point = scale_.sidePoint(at);
  if (lopView_ == ViewMode::top) point.y = scale_.lopTopRow(at);
  return point.x > box_.left && point.x < box_.right && point.y > box_.top && point.y < box_.bottom;
}

}  // namespace norvik::obj
