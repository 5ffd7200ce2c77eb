#include "channels/mirror/extract.h"

#include "channels/mirror/blank_parts.h"
#include "channels/mirror/part_vertices.h"
#include "channels/mirror/plain_decimal.h"
#include "front/finished_file.h"
#include "text/columns.h"
#include "text/field_search.h"
#include "text/number_text.h"
#include "text/rewrite_pass.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kDeltas = "\\Extract.obj";
constexpr std::string_view kMorph = "\\NewMor.obj";
constexpr std::string_view kBlock = "deltas";

/// Deletes an older result, if it can be, and begins the new one.
text::LineWriter newFile(front::Session& session, const std::string& path) {
  text::ignoringErrors([&] { session.disk.remove(path); });
  return {session.disk, path};
}

/// Writes the displacements of the first morph whose entry holds the name, index and numbers of
/// each.
void writeDeltas(front::Session& session, std::string_view morph, const std::string& path) {
  const std::string& figure = session.opening.OpenedPath;
  text::keepApart(session.disk, figure, path);
  text::LineWriter out = newFile(session, path);
  const std::string entry = "targetGeom " + std::string{morph};
  text::LineReader in(session.disk, figure);
  text::passFieldHolding(in, entry);
  text::passField(in, kBlock, [](std::string_view field) { return field == kBlock; });
  static_cast<void>(in.field());
  constexpr std::size_t kIndexColumn = 3;
  for (auto delta = in.field(); text::begins(delta, "d"); delta = in.field()) {
    out.line(text::from(delta, kIndexColumn));
  }
  out.close();
}

void displace(front::Session& session, const std::string& deltas, std::vector<Vertex>& vertices) {
  text::LineReader in(session.disk, deltas);
  while (!in.atEnd()) {
    auto rest = in.line();
    const double index = text::value(takePart(rest));
    if (index < 0 || index >= static_cast<double>(vertices.size())) {
      throw text::FileError(text::ErrorNumber::subscriptOutOfRange);
    }
    for (float& coordinate : vertices[static_cast<std::size_t>(index)]) {
      const double moved = coordinate + text::value(plainDecimal(takePart(rest)));
      coordinate = static_cast<float>(moved);
    }
  }
}

void writeMorph(front::Session& session, const VertexRange& range, const std::string& deltas) {
  const std::string& obj = session.opening.LabelOBJFileName.caption();
  const std::string path = session.opening.inProgramFolder(kMorph);
  text::keepApart(session.disk, obj, path);
  text::LineWriter out = newFile(session, path);
  auto vertices = positionsOf(session.disk, obj, range);
  displace(session, deltas, vertices);
  for (const Vertex& vertex : vertices) {
    out.line("v " + text::numberText(vertex[0]) + " " + text::numberText(vertex[1]) + " " +
             text::numberText(vertex[2]));
  }
  out.close();
}

void extractToObj(front::Session& session) {
  front::Opening& opening = session.opening;
  const front::ListBox& list = opening.ListChannels;
  if (text::holds(list.item(0), "ALL")) {
    session.front.messageBox("Choose a bodypart first!", "Error!", front::kOk);
    return;
  }
  constexpr std::size_t kNameColumn = 15;
  const std::string part{text::before(text::from(list.item(0), kNameColumn), ":")};
  session.hourglass(true);
  const VertexRange range = verticesOfPart(session.disk, opening.LabelOBJFileName.caption(), part);
  if (list.selection().empty()) {
    session.hourglass(false);
    session.front.messageBox("Select a morph before right clicking!", "Error!", front::kOk);
    return;
  }
  auto morph = list.chosen();
  if (morph.starts_with('\t')) morph.remove_prefix(1);
  const std::string deltas = opening.inProgramFolder(kDeltas);
  writeDeltas(session, morph, deltas);
  writeMorph(session, range, deltas);
  session.hourglass(false);
  session.front.tellOf({.path = opening.inProgramFolder(kMorph),
                        .isScratch = true,
                        .part = part,
                        .geometry = opening.LabelOBJFileName.caption()});
}

}  // namespace

void wireExtract(front::Session& session) {
  session.opening.ListChannels.released.add([&session](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::right) extractToObj(session);
  });
}

}  // namespace norvik::channels
