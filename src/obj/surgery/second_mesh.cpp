#include "obj/surgery/second_mesh.h"

#include "mesh/face_tokens.h"
#include "text/columns.h"
#include "text/line_reader.h"

#include <algorithm>

namespace norvik::obj {

void Bounds::take(const Position& at) {
  BiggestX = std::max(BiggestX, at.x);
  SmallestX = std::min(SmallestX, at.x);
  BiggestY = std::max(BiggestY, at.y);
  BiggestZ = std::max(BiggestZ, at.z);
  SmallestZ = std::min(SmallestZ, at.z);
}

SecondMeshPass::SecondMeshPass(Workshop& workshop, Overlays& overlays)
    : workshop_(workshop),
      overlays_(overlays),
      store_(workshop.session, MeshPlace::added),
      pace_(workshop.session.front),
      scale_(workshop.form) {}

bool SecondMeshPass::run(std::string_view path) {
  const auto departures = workshop_.departures;
  text::LineReader in(workshop_.session.disk, path);
  while (!in.atEnd()) {
    if (!addLine(in.line())) continue;
    pace_.afterFace();
    if (workshop_.departures != departures) return false;
  }
  store_.close();
  return true;
}

/// Whether the line was a face.
bool SecondMeshPass::addLine(std::string_view raw) {
  const ObjLine line = normalise_(raw);
  if (line.kind == LineKind::texturePoint) {
    store_.addTextureLine(line.text);
  } else if (line.kind == LineKind::group) {
    store_.addFace(text::trimmed(line.text));
  } else if (text::holds(line.text, "use")) {
    // In front of the test for faces: one that holds it stays as it was written.
    const bool asItIs = line.kind == LineKind::face;
    store_.addFace(text::trimmed(asItIs ? raw : line.text));
  } else if (line.kind == LineKind::vertex) {
    store_.addVertex(line.text);
    const Position at = positionOf(cut_(line.text));
    bounds_.take(at);
    vertices_.push_back(at);
  } else if (line.kind == LineKind::face) {
    addFace(line.text);
    return true;
  }
  return false;
}

void SecondMeshPass::addFace(std::string_view line) {
  if (line.size() > kFaceRecordLength) workshop_.session.front.beep();
  store_.addFace(line);
  readFaceTokens(line, indexes_);
  corners_.begin();
  for (const std::size_t index : indexes_) corners_.add(vertexAt(vertices_, index));
  corners_.draw(workshop_.form.overlays(), graphics::paletteColour(kPlainFill));
  // The first corner is none of the points.
  if (corners_.count() > 1) overlays_.addPoints(corners_);
  if (!workshop_.Suppress) overlays_.chosen().refresh();
}

}  // namespace norvik::obj
