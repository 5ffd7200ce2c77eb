#include "mesh/display_writer.h"

namespace norvik::obj {

namespace {

constexpr int kCorners = 3;
constexpr std::size_t kThinnedFrom = std::size_t{40000} * kCorners;

}  // namespace

void DisplayWriter::beginFace() {
  corners_ = kCorners;
  if (list_.DisplayCount < kThinnedFrom) return;
  ++list_.thinned;
  if (list_.thinned % 2 != 0) corners_ = 0;
}

void DisplayWriter::addCorner(const Position& at) {
  if (corners_ == 0) return;
  --corners_;
  const graphics::Vertex vertex{.x = at.x, .y = at.y, .z = at.z};
  if (next_ < list_.vertices.size()) {
    list_.vertices[next_] = vertex;
  } else {
    list_.vertices.push_back(vertex);
  }
  ++next_;
  ++list_.DisplayCount;
  ++list_.revision;
}

}  // namespace norvik::obj
