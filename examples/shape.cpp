#include "shape.h"

#include "random.h"

#include <algorithm>

namespace norvik::examples {

namespace {

constexpr Units million = 1'000'000;

// 1,000,000 in the middle of the window, falling to 0 at its ends.
Units windowAt(const Window& window, Units along) {
  if (window.reach == 0) return million;
  const Units distance = (along - window.middle) * 1000 / window.reach;
  return std::max<Units>(0, million - distance * distance);
}

Point scaled(const Point& point, Units strength, Units window) {
  return point * strength / 1000 * window / million;
}

Point roughness(const Mesh& mesh, std::size_t ring, Units strength, Random& random) {
  const Point& front = mesh.fronts[ring];
  const Units reach = (std::max({front.x, -front.x, front.y, -front.y, front.z, -front.z}) + 999) *
                      (strength < 0 ? -strength : strength) / 1000;
  const Units x = random.between(-reach, reach);
  const Units y = random.between(-reach, reach);
  const Units z = random.between(-reach, reach);
  return {x, y, z};
}

}  // namespace

void findDeltas(const Shape& shape, const Mesh& mesh, std::uint64_t seed,
                std::vector<Delta>& deltas) {
  deltas.clear();
  Random random(seed);
  const std::size_t sides = static_cast<std::size_t>(mesh.sides);
  const Point bone = mesh.centres.back() - mesh.centres.front();
  for (std::size_t index = 0; index < mesh.deltaOrder.size(); ++index) {
    const std::size_t point = mesh.deltaOrder[index];
    const std::size_t ring = point / sides;
    const Units along = static_cast<Units>(ring) * 1000 / (mesh.rings - 1);
    const Units window = windowAt(shape.window, along);
    Point offset;
    switch (shape.kind) {
      case ShapeKind::swell:
        offset = scaled(mesh.points[point] - mesh.centres[ring], shape.strength, window);
        break;
      case ShapeKind::bulge:
        offset = scaled(mesh.fronts[ring], shape.strength, window) *
                 std::max<Units>(0, sineOf(static_cast<Units>(point % sides), mesh.sides)) /
                 million;
        break;
      case ShapeKind::stretch:
        offset = scaled(bone, shape.strength, window) * along / 1000;
        break;
      case ShapeKind::roughen:
        offset = scaled(roughness(mesh, ring, shape.strength, random), 1000, window);
        break;
    }
    if (offset != Point{}) deltas.push_back({index, offset});
  }
}

}  // namespace norvik::examples
