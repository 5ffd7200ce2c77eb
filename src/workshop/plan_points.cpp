#include "workshop/plan_points.h"

#include "text/file_error.h"

namespace norvik::obj {

const Position& vertexAt(std::span<const Position> vertices, std::size_t index) {
  if (index == 0 || index > vertices.size()) {
    throw text::FileError(text::ErrorNumber::subscriptOutOfRange);
  }
  return vertices[index - 1];
}

void PlanPoints::begin() {
  for (auto& points : points_) points.clear();
  count_ = 0;
}

void PlanPoints::add(const Position& at) {
  const bool first = count_ == 0;
  if (count_ == 1) {
    for (auto& points : points_) points.pop_back();
  }
  const auto places = first ? scale_.firstPoints(at) : scale_.points(at);
  for (std::size_t view = 0; view < points_.size(); ++view) points_[view].push_back(places[view]);
  ++count_;
}

void PlanPoints::place(std::span<const Position> vertices, std::span<const std::size_t> indexes) {
  begin();
  for (const std::size_t index : indexes) {
    if (index != 0 && index <= vertices.size()) add(vertices[index - 1]);
  }
}

void PlanPoints::draw(const std::array<front::PictureBox*, 3>& pictures,
                      front::Colour colour) const {
  // A polygon has one corner less than its face.
  if (count_ < 2) return;
  for (std::size_t view = 0; view < pictures.size(); ++view) {
    pictures[view]->surface().polygon(points_[view], colour);
  }
}

}  // namespace norvik::obj
