#include "channels/mirror/part_shape.h"

namespace norvik::channels {

PartShape shapeOfExtract(const text::Disk& disk, const std::string& obj, const std::string& part,
                         const std::string& extract) {
  PartShape shape;
  const VertexRange range = verticesOfPart(disk, obj, part);
  shape.rest = positionsOf(disk, obj, range);
  shape.moved = positionsOf(disk, extract, {1, range.count()});
  for (const Edge& edge : edgesOfPart(disk, obj, part)) {
    shape.sides.emplace_back(static_cast<std::size_t>(edge.first - range.lowest),
                             static_cast<std::size_t>(edge.second - range.lowest));
  }
  return shape;
}

}  // namespace norvik::channels
