#pragma once
// The vertices of a body part in the OBJ that holds its geometry.

#include "text/disk.h"

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace norvik::channels {

/// The range of a part's vertices, by their numbers in the OBJ; empty if it has no faces.
struct VertexRange {
  std::int64_t lowest = 0;
  std::int64_t highest = -1;

  std::int64_t count() const { return highest - lowest + 1; }
};

/// Reads up to the part's "g" line and takes the vertices of the faces up to the next group. A
/// relative number counts back from the vertices read so far. Throws FileError inputPastEnd (62)
/// when the OBJ has no such group.
VertexRange verticesOfPart(const text::Disk& disk, const std::string& obj, const std::string& part);

/// Two vertices by their numbers in the OBJ, the lower one first.
using Edge = std::pair<std::int64_t, std::int64_t>;

/// The sides of a part's faces, each once. Throws as verticesOfPart does.
std::vector<Edge> edgesOfPart(const text::Disk& disk, const std::string& obj,
                              const std::string& part);

using Vertex = std::array<float, 3>;

/// Where the vertices of a range are, of those in front of the first texture vertex. Throws
/// FileError subscriptOutOfRange (9) when the OBJ has not that many.
std::vector<Vertex> positionsOf(const text::Disk& disk, const std::string& obj,
                                const VertexRange& range);

}  // namespace norvik::channels
