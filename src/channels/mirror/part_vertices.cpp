#include "channels/mirror/part_vertices.h"

#include "channels/mirror/blank_parts.h"
#include "text/columns.h"
#include "text/line_reader.h"
#include "text/number_text.h"

#include <algorithm>

namespace norvik::channels {

namespace {

bool isVertex(std::string_view line) {
  return text::begins(line, "v ");
}

std::int64_t cornerNumber(std::string_view corner, std::int64_t verticesSoFar) {
  const auto index = static_cast<std::int64_t>(text::value(text::before(corner, "/")));
  return corner.starts_with('-') ? verticesSoFar + 1 + index : index;
}

/// Reads up to the part's "g" line and calls `use` with the vertices of each face up to the next
/// group.
template <typename Use>
void forEachFace(const text::Disk& disk, const std::string& obj, const std::string& part, Use use) {
  text::LineReader in(disk, obj);
  const std::string group = "g " + part;
  std::int64_t vertices = 0;
  for (;;) {
    const auto field = in.field();
    if (isVertex(field)) ++vertices;
    if (text::begins(field, "g") && text::trimmed(field) == group) break;
  }
  std::vector<std::int64_t> face;
  while (!in.atEnd()) {
    const auto field = in.field();
    if (text::begins(field, "g")) break;
    if (isVertex(field)) ++vertices;
    if (!text::begins(field, "f ")) continue;
    face.clear();
    auto rest = text::from(field, 3);
    for (auto corner = takePart(rest); !corner.empty(); corner = takePart(rest)) {
      face.push_back(cornerNumber(corner, vertices));
    }
    use(face);
  }
}

}  // namespace

VertexRange verticesOfPart(const text::Disk& disk, const std::string& obj,
                           const std::string& part) {
  VertexRange range;
  forEachFace(disk, obj, part, [&range](const std::vector<std::int64_t>& face) {
    for (const std::int64_t number : face) {
      const bool first = range.count() == 0;
      range.lowest = first ? number : std::min(range.lowest, number);
      range.highest = first ? number : std::max(range.highest, number);
    }
  });
  return range;
}

std::vector<Edge> edgesOfPart(const text::Disk& disk, const std::string& obj,
                              const std::string& part) {
  std::vector<Edge> edges;
  forEachFace(disk, obj, part, [&edges](const std::vector<std::int64_t>& face) {
    for (std::size_t i = 0; i < face.size(); ++i) {
      const auto [from, to] = std::minmax(face[i], face[(i + 1) % face.size()]);
      edges.emplace_back(from, to);
    }
  });
  std::sort(edges.begin(), edges.end());
  edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
  return edges;
}

std::vector<Vertex> positionsOf(const text::Disk& disk, const std::string& obj,
                                const VertexRange& range) {
  std::vector<Vertex> positions;
  if (range.count() == 0) return positions;
  if (range.lowest < 1) throw text::FileError(text::ErrorNumber::subscriptOutOfRange);
  text::LineReader in(disk, obj);
  std::int64_t number = 0;
  while (!in.atEnd() && number < range.highest) {
    const auto field = in.field();
    if (text::begins(field, "vt")) break;
    if (!isVertex(field) || ++number < range.lowest) continue;
    Vertex& vertex = positions.emplace_back();
    auto rest = text::from(field, 3);
    for (float& coordinate : vertex) {
      coordinate = static_cast<float>(text::value(takePart(rest)));
    }
  }
  if (number < range.highest) throw text::FileError(text::ErrorNumber::subscriptOutOfRange);
  return positions;
}

}  // namespace norvik::channels
