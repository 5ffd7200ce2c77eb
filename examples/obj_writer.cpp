#include "obj_writer.h"

#include <array>
#include <functional>

namespace norvik::examples {

namespace {

// Numbers in the file, from 1, of a mesh's points.
using Numbering = std::function<std::size_t(std::size_t point)>;

void writePoints(TextFile& file, std::size_t tabs, const Mesh& mesh, std::size_t firstPoint) {
  for (std::size_t i = firstPoint; i < mesh.points.size(); ++i) {
    const Point& p = mesh.points[i];
    file.line(tabs, "v ", Fixed8{p.x}, " ", Fixed8{p.y}, " ", Fixed8{p.z});
  }
}

void writeTexturePoints(TextFile& file, std::size_t tabs, const Mesh& mesh) {
  for (const TexturePoint& point : mesh.texturePoints) {
    file.line(tabs, "vt ", Fixed8{point.u}, " ", Fixed8{point.v});
  }
}

void writeFaces(TextFile& file, std::size_t tabs, const Mesh& mesh, const Numbering& numberOf,
                std::size_t textureBase, const std::function<std::string(int)>& nameOf) {
  int material = -1;
  for (const Face& face : mesh.faces) {
    if (face.material != material) {
      material = face.material;
      file.line(tabs, "usemtl ", nameOf(material));
    }
    const auto& [a, b, c, d] = face.corners;
    const auto& [ta, tb, tc, td] = face.texturePoints;
    file.line(tabs, "f ", numberOf(a), "/", textureBase + ta, " ", numberOf(b), "/",
              textureBase + tb, " ", numberOf(c), "/", textureBase + tc, " ", numberOf(d), "/",
              textureBase + td);
  }
}

// Which vertices of the file belong to a part: its own ones, and those of a ring that it has from
// its parent.
struct PartNumbers {
  std::size_t firstOwn;      // number of the first vertex that the part adds
  std::size_t ownFrom;       // its index among the part's points
  std::size_t firstShared;   // number of the first vertex of the shared ring
  std::size_t firstTexture;  // number of the first texture point
  std::size_t lastRing;      // number of the first vertex of the last ring

  [[nodiscard]] std::size_t numberOf(std::size_t point) const {
    return point < ownFrom ? firstShared + point : firstOwn + point - ownFrom;
  }
};

class BodyWriter {
 public:
  BodyWriter(TextFile& file, const std::vector<BodyPart>& plan, const Density& density)
      : file_(file), plan_(plan), density_(density) {}

  ObjCounts write() {
    for (std::size_t part = 0; part < plan_.size(); ++part) writePartPoints(part);
    for (std::size_t part = 0; part < plan_.size(); ++part) {
      writeTexturePoints(file_, 0, meshOfPart(part));
    }
    for (std::size_t part = 0; part < plan_.size(); ++part) writePartFaces(part);
    return counts_;
  }

 private:
  [[nodiscard]] Mesh meshOfPart(std::size_t part) const { return partMesh(plan_, part, density_); }

  void writePartPoints(std::size_t part) {
    const Mesh mesh = meshOfPart(part);
    PartNumbers numbers{};
    numbers.firstOwn = counts_.vertices + 1;
    numbers.firstTexture = counts_.texturePoints + 1;
    if (plan_[part].continuesParent) {
      numbers.ownFrom = static_cast<std::size_t>(mesh.sides);
      numbers.firstShared = numbers_[static_cast<std::size_t>(plan_[part].parent)].lastRing;
    }
    numbers.lastRing = numbers.numberOf(mesh.points.size() - static_cast<std::size_t>(mesh.sides));
    writePoints(file_, 0, mesh, numbers.ownFrom);
    counts_.vertices += mesh.points.size() - numbers.ownFrom;
    counts_.texturePoints += mesh.texturePoints.size();
    counts_.faces += mesh.faces.size();
    numbers_.push_back(numbers);
  }

  void writePartFaces(std::size_t part) {
    file_.line(0, "g ", plan_[part].name);
    const PartNumbers& numbers = numbers_[part];
    writeFaces(
        file_, 0, meshOfPart(part), [&](std::size_t point) { return numbers.numberOf(point); },
        numbers.firstTexture,
        [](int material) { return materialName(static_cast<Material>(material)); });
  }

  TextFile& file_;
  const std::vector<BodyPart>& plan_;
  Density density_;
  std::vector<PartNumbers> numbers_;
  ObjCounts counts_;
};

}  // namespace

ObjCounts writeBodyObj(TextFile& file, const std::vector<BodyPart>& plan, const Density& density) {
  return BodyWriter(file, plan, density).write();
}

void writeMeshObj(TextFile& file, std::size_t tabs, const std::string& group, const Mesh& mesh,
                  const std::vector<std::string>& materials) {
  writePoints(file, tabs, mesh, 0);
  writeTexturePoints(file, tabs, mesh);
  file.line(tabs, "g ", group);
  writeFaces(
      file, tabs, mesh, [](std::size_t point) { return point + 1; }, 1,
      [&](int material) { return materials[static_cast<std::size_t>(material)]; });
}

const std::string& materialName(Material material) {
  static const std::array<std::string, 5> names{"skin", "lips", "eyes", "suit", "shoes"};
  return names[static_cast<std::size_t>(material)];
}

}  // namespace norvik::examples
