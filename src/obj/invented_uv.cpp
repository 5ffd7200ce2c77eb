#include "obj/invented_uv.h"

#include "mesh/uv_text.h"

#include <algorithm>
#include <vector>

namespace norvik::obj {

void InventedUV::set(std::size_t vertex, float u, float v) {
  if (vertex > 0) points_[vertex] = {u, v};
}

void InventedUV::forEachLine(const std::function<void(std::string_view line)>& use) const {
  std::vector<std::size_t> order;
  order.reserve(points_.size());
  for (const auto& [vertex, point] : points_) order.push_back(vertex);
  std::sort(order.begin(), order.end());
  for (const std::size_t vertex : order) {
    const UV& point = points_.at(vertex);
    use(uvLine(point.u, point.v));
  }
}

}  // namespace norvik::obj
