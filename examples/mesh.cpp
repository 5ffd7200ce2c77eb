#include "mesh.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace norvik::examples {

namespace {

constexpr Units wholeTexture = 100'000'000;

std::size_t asSize(int number) {
  return static_cast<std::size_t>(number);
}

class TubeBuilder {
 public:
  TubeBuilder(const Tube& tube, const MaterialRule& rule)
      : tube_(tube), rule_(rule), sides_(asSize(tube.density.sides)) {
    mesh_.sides = tube.density.sides;
    mesh_.rings = ringCount(tube.sections.size(), tube.density);
    rings_ = asSize(mesh_.rings);
  }

  Mesh build() {
    addRings();
    addTubeTexture();
    addTubeFaces();
    if (tube_.hasStartCap) addCap(0, false);
    if (tube_.hasEndCap) addCap(rings_ - 1, true);
    std::stable_sort(mesh_.faces.begin(), mesh_.faces.end(),
                     [](const Face& a, const Face& b) { return a.material < b.material; });
    orderByFirstUse();
    return std::move(mesh_);
  }

 private:
  void addRings() {
    const std::size_t steps = (rings_ - 1) / (tube_.sections.size() - 1);
    const Units stepCount = static_cast<Units>(steps);
    for (std::size_t ring = 0; ring < rings_; ++ring) {
      const std::size_t key = std::min(ring / steps, tube_.sections.size() - 2);
      const Units step = static_cast<Units>(ring - key * steps);
      const Section& from = tube_.sections[key];
      const Section& to = tube_.sections[key + 1];
      const auto mix = [&](const Point& a, const Point& b) {
        return (a * (stepCount - step) + b * step) / stepCount;
      };
      addRing({mix(from.centre, to.centre), mix(from.u, to.u), mix(from.v, to.v)});
    }
  }

  void addRing(const Section& section) {
    mesh_.centres.push_back(section.centre);
    mesh_.fronts.push_back(section.v);
    for (Units side = 0; side < mesh_.sides; ++side) {
      mesh_.points.push_back(section.centre + (section.u * cosineOf(side, mesh_.sides) +
                                               section.v * sineOf(side, mesh_.sides)) /
                                                  1'000'000);
    }
  }

  // A place in the tube's cell, in thousandths of the cell.
  [[nodiscard]] TexturePoint inCell(Units across, Units up) const {
    const Units size = wholeTexture / static_cast<Units>(tube_.cell.gridWidth);
    const Units column = static_cast<Units>(tube_.cell.number % tube_.cell.gridWidth);
    const Units row = static_cast<Units>(tube_.cell.number / tube_.cell.gridWidth);
    return {column * size + size * across / 1000, row * size + size * up / 1000};
  }

  void addTubeTexture() {
    for (Units ring = 0; ring < mesh_.rings; ++ring) {
      for (Units side = 0; side <= mesh_.sides; ++side) {
        mesh_.texturePoints.push_back(
            inCell(50 + 900 * side / mesh_.sides, 50 + 600 * ring / (mesh_.rings - 1)));
      }
    }
  }

  void addTubeFaces() {
    for (std::size_t ring = 0; ring + 1 < rings_; ++ring) {
      const int along = static_cast<int>((2 * ring + 1) * 500 / (rings_ - 1));
      for (std::size_t side = 0; side < sides_; ++side) {
        const int around = static_cast<int>((2 * side + 1) * 500 / sides_);
        const std::size_t next = (side + 1) % sides_;
        const std::size_t low = ring * sides_;
        const std::size_t lowTexture = ring * (sides_ + 1) + side;
        const std::size_t highTexture = lowTexture + sides_ + 1;
        mesh_.faces.push_back({{low + side, low + next, low + sides_ + next, low + sides_ + side},
                               {lowTexture, lowTexture + 1, highTexture + 1, highTexture},
                               rule_(along, around)});
      }
    }
  }

  // Closes a ring with a strip of quads between its two halves; on the texture it is a disc above
  // the tube.
  void addCap(std::size_t ring, bool isEnd) {
    const std::size_t base = ring * sides_;
    const std::size_t textureBase = mesh_.texturePoints.size();
    for (Units side = 0; side < mesh_.sides; ++side) {
      mesh_.texturePoints.push_back(
          inCell((isEnd ? 750 : 250) + 110 * cosineOf(side, mesh_.sides) / 1'000'000,
                 820 + 110 * sineOf(side, mesh_.sides) / 1'000'000));
    }
    const int material = rule_(isEnd ? 1000 : 0, 750);
    for (std::size_t i = 0; i + 1 < sides_ / 2; ++i) {
      std::array<std::size_t, 4> strip{i, i + 1, sides_ - 2 - i, sides_ - 1 - i};
      if (!isEnd) std::reverse(strip.begin(), strip.end());
      Face face{strip, strip, material};
      for (std::size_t& corner : face.corners) corner += base;
      for (std::size_t& point : face.texturePoints) point += textureBase;
      mesh_.faces.push_back(face);
    }
  }

  void orderByFirstUse() {
    std::vector<bool> isUsed(mesh_.points.size());
    for (const Face& face : mesh_.faces) {
      for (const std::size_t corner : face.corners) {
        if (!isUsed[corner]) mesh_.deltaOrder.push_back(corner);
        isUsed[corner] = true;
      }
    }
  }

  const Tube& tube_;
  const MaterialRule& rule_;
  std::size_t sides_;
  std::size_t rings_;
  Mesh mesh_{};
};

// Eyes and lips are faces on the front of the head, at heights between the head's sections.
int headMaterial(int along, int around) {
  const int fromFront = std::abs(around - 250);
  if (fromFront > 80) return static_cast<int>(Material::skin);
  if (along > 500 && along < 667 && fromFront > 20) return static_cast<int>(Material::eyes);
  if (along > 167 && along < 333) return static_cast<int>(Material::lips);
  return static_cast<int>(Material::skin);
}

}  // namespace

Density densityForVertices(int verticesPerPart) {
  int sides = 8;
  while (sides * sides < verticesPerPart) sides += 4;
  return {sides, verticesPerPart};
}

Density densityForFaces(long long faces, std::size_t parts) {
  const long long perPart = std::max(faces / static_cast<long long>(parts), 24LL);
  Density density = densityForVertices(static_cast<int>(perPart));
  density.verticesPerPart += density.sides;
  return density;
}

Cell cellOf(std::size_t number, std::size_t count) {
  std::size_t width = 1;
  while (width * width < count) ++width;
  return {number, width};
}

int ringCount(std::size_t sections, const Density& density) {
  const int spans = static_cast<int>(sections) - 1;
  const int wantedRings = density.verticesPerPart / density.sides - 1;
  return 1 + spans * std::max(1, (wantedRings + spans / 2) / spans);
}

Mesh meshOf(const Tube& tube, const MaterialRule& rule) {
  return TubeBuilder(tube, rule).build();
}

Mesh partMesh(const std::vector<BodyPart>& plan, std::size_t part, const Density& density) {
  const BodyPart& body = plan[part];
  const Tube tube{.sections = body.sections,
                  .density = density,
                  .hasStartCap = !body.continuesParent,
                  .hasEndCap = !isContinued(plan, part),
                  .cell = cellOf(part, plan.size())};
  if (body.name == "head") return meshOf(tube, headMaterial);
  const int material = static_cast<int>(body.material);
  return meshOf(tube, [material](int, int) { return material; });
}

}  // namespace norvik::examples
