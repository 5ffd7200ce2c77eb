#pragma once

#include "body_plan.h"
#include "units.h"

#include <array>
#include <cstddef>
#include <functional>
#include <vector>

namespace norvik::examples {

// How fine the tubes are: every ring has the same number of sides, so that neighbouring parts can
// share one.
struct Density {
  int sides = 8;
  int verticesPerPart = 32;
};

Density densityForVertices(int verticesPerPart);
// The density at which a body of that many parts has about that many faces.
Density densityForFaces(long long faces, std::size_t parts);

// A place on the texture, 0 to 1 in both directions.
struct TexturePoint {
  Units u;
  Units v;
};

// One cell of a square grid over the texture.
struct Cell {
  std::size_t number = 0;
  std::size_t gridWidth = 1;
};
Cell cellOf(std::size_t number, std::size_t count);

struct Tube {
  std::vector<Section> sections{};
  Density density{};
  bool hasStartCap = true;
  bool hasEndCap = true;
  Cell cell{};
};

struct Face {
  std::array<std::size_t, 4> corners;
  std::array<std::size_t, 4> texturePoints;
  int material;
};

// The material of a face by its place: along the tube and around it (250 is the figure's front), in
// thousandths.
using MaterialRule = std::function<int(int along, int around)>;

// A tube of quads. Points stand ring by ring, so that point r * sides + s is side s of ring r.
struct Mesh {
  int sides;
  int rings;
  std::vector<Point> points;
  std::vector<Point> centres;  // of the rings
  std::vector<Point> fronts;   // the rings' v
  std::vector<TexturePoint> texturePoints;
  std::vector<Face> faces;  // sorted by material
  // The points in the order in which the faces first use them: the numbering that deltas go by.
  std::vector<std::size_t> deltaOrder;
};

// Rings and faces that meshOf makes of such a tube.
int ringCount(std::size_t sections, const Density& density);

Mesh meshOf(const Tube& tube, const MaterialRule& rule);

// The mesh of a figure's part, with its material by place; the head has eyes and lips.
Mesh partMesh(const std::vector<BodyPart>& plan, std::size_t part, const Density& density);

}  // namespace norvik::examples
