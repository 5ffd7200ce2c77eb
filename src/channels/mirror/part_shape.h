#pragma once
// A body part at rest and with a morph, as lines.

#include "channels/mirror/part_vertices.h"
#include "text/disk.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace norvik::channels {

/// `moved` has as many vertices as `rest`; the sides of the faces go by their places in both.
struct PartShape {
  std::vector<Vertex> rest;
  std::vector<Vertex> moved;
  std::vector<std::pair<std::size_t, std::size_t>> sides;
};

/// The part's own shape from the OBJ that holds it, and the displaced one from the OBJ that the
/// extract has made of it. Throws FileError if the two do not fit.
PartShape shapeOfExtract(const text::Disk& disk, const std::string& obj, const std::string& part,
                         const std::string& extract);

}  // namespace norvik::channels
