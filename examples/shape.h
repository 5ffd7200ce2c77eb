#pragma once

#include "mesh.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace norvik::examples {

// What a morph does to a part.
enum class ShapeKind {
  swell,    // away from the bone
  bulge,    // forward, the front half alone
  stretch,  // along the bone, more towards its end
  roughen,  // every vertex its own way
};

// The middle and the reach of a shape along the part, in thousandths; a reach of 0 is the whole
// part at full strength.
struct Window {
  int middle = 500;
  int reach = 500;
};
inline constexpr Window wholePart{0, 0};

struct Shape {
  ShapeKind kind = ShapeKind::swell;
  int strength = 0;  // in thousandths of the part's size
  Window window;
};

struct Delta {
  std::size_t index = 0;
  Point offset;
};

// The vertices that the shape moves, by ascending index, in `deltas` (cleared first). Only roughen
// looks at the seed.
void findDeltas(const Shape& shape, const Mesh& mesh, std::uint64_t seed,
                std::vector<Delta>& deltas);

}  // namespace norvik::examples
