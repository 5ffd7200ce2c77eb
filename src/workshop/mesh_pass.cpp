#include "workshop/mesh_pass.h"

#include "mesh/face_tokens.h"
#include "mesh/obj_number.h"
#include "text/columns.h"
#include "text/line_reader.h"

namespace norvik::obj {

MeshPass::MeshPass(Workshop& workshop, MeshStore* store)
    : workshop_(workshop),
      store_(store),
      groups_(workshop.form.ListGroups),
      materials_(workshop.form.ListMaterials),
      groupColours_(workshop.form.ListGroupColors),
      materialColours_(workshop.form.ListMATColors),
      views_(workshop),
      pace_(workshop.session.front) {}

bool MeshPass::run(std::string_view path) {
  const auto departures = workshop_.departures;
  workshop_.byGroups = workshop_.form.OptionColorGroups.value();
  text::LineReader in(workshop_.session.disk, path);
  while (!in.atEnd()) {
    const ObjLine line = normalise_(in.line());
    addLine(line);
    if (line.kind != LineKind::face) continue;
    pace_.afterFace();
    if (workshop_.departures != departures) return false;
  }
  return true;
}

void MeshPass::addLine(const ObjLine& line) {
  switch (line.kind) {
    case LineKind::texturePoint:
      return addTexturePoint(line.text);
    case LineKind::group:
      return addGroup(line.text);
    case LineKind::material:
      return addMaterial(line.text);
    case LineKind::vertex:
      return addVertex(line.text);
    case LineKind::face:
      return addFace(line.text);
    case LineKind::other:
      return;
  }
}

void MeshPass::addTexturePoint(std::string_view line) {
  if (store_ == nullptr) return;
  constexpr std::size_t kFirstNumber = 4;
  std::string_view numbers = text::from(line, kFirstNumber);
  if (text::begins(numbers, " ")) numbers.remove_prefix(1);
  const std::string_view u = text::before(numbers, " ");
  const std::string_view v = text::from(numbers, u.size() + 2);
  ++workshop_.mesh.TexCount;
  workshop_.mesh.HasUV = true;
  store_->addTexturePoint(leadingSingle(u), leadingSingle(v));
}

void MeshPass::addGroup(std::string_view line) {
  std::optional<front::Colour> colour;
  if (store_ != nullptr) {
    store_->addFace(line);
    workshop_.mesh.RecordExtra += 1;
    groups_.add(groupName(line));
    colour = groupColours_.findOrDraw(line, workshop_.random);
  } else {
    colour = groupColours_.find(line);
  }
  if (colour && workshop_.form.OptionColorGroups.value()) workshop_.colourFaces(*colour);
}

void MeshPass::addMaterial(std::string_view line) {
  if (store_ == nullptr) return;
  store_->addFace(line);
  workshop_.mesh.RecordExtra += 1;
  materials_.add(materialName(line));
  const front::Colour colour = materialColours_.findOrDraw(line, workshop_.random);
  if (workshop_.form.OptionColorMaterials.value()) workshop_.colourFaces(colour);
}

void MeshPass::addVertex(std::string_view line) {
  if (store_ != nullptr) store_->addVertex(line);
  const Position at = positionOf(cut_(line));
  Mesh& mesh = workshop_.mesh;
  if (at.x > mesh.BiggestX) mesh.BiggestX = at.x;
  if (at.x < mesh.SmallestX) mesh.SmallestX = at.x;
  if (at.y > mesh.BiggestY) mesh.BiggestY = at.y;
  mesh.vertices.push_back(at);
}

void MeshPass::addFace(std::string_view line) {
  if (line.size() > kFaceRecordLength) workshop_.session.front.beep();
  if (store_ != nullptr) store_->addFace(line);
  workshop_.mesh.FaceCount += 1;
  readFaceTokens(line, indexes_);
  views_.draw(indexes_);
  if (!workshop_.Suppress) workshop_.flatView(workshop_.viewMode).refresh();
}

}  // namespace norvik::obj
