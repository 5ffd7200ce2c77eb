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

/// Widens the range by the corners of a face.
class FaceCorners {
 public:
  explicit FaceCorners(VertexRange& range) : range_(range) {}

  void add(std::string_view face, std::int64_t verticesSoFar) {
    auto rest = text::from(face, 3);
    for (auto corner = takePart(rest); !corner.empty(); corner = takePart(rest)) {
      add(number(corner, verticesSoFar));
    }
  }

 private:
  static std::int64_t number(std::string_view corner, std::int64_t verticesSoFar) {
    const auto index = static_cast<std::int64_t>(text::value(text::before(corner, "/")));
    return corner.starts_with('-') ? verticesSoFar + 1 + index : index;
  }
  void add(std::int64_t number) {
    const bool first = range_.count() == 0;
    range_.lowest = first ? number : std::min(range_.lowest, number);
    range_.highest = first ? number : std::max(range_.highest, number);
  }

  VertexRange& range_;
};

}  // namespace

VertexRange verticesOfPart(const text::Disk& disk, const std::string& obj,
                           const std::string& part) {
  text::LineReader in(disk, obj);
  const std::string group = "g " + part;
  std::int64_t vertices = 0;
  for (;;) {
    const auto field = in.field();
    if (isVertex(field)) ++vertices;
    if (text::begins(field, "g") && text::trimmed(field) == group) break;
  }
  VertexRange range;
  FaceCorners corners(range);
  while (!in.atEnd()) {
    const auto field = in.field();
    if (text::begins(field, "g")) break;
    if (isVertex(field)) ++vertices;
    if (text::begins(field, "f ")) corners.add(field, vertices);
  }
  return range;
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
