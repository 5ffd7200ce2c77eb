#include "prop_writer.h"

#include "actor_writer.h"
#include "channel_writer.h"
#include "obj_writer.h"

#include <algorithm>

namespace norvik::examples {

namespace {

std::vector<std::string> materialNames(const Prop& prop) {
  std::vector<std::string> names;
  for (const MaterialBlock& material : prop.materials) names.push_back(material.name);
  return names;
}

void writeEmbeddedMesh(TextFile& file, const Prop& prop) {
  const std::size_t corners = prop.mesh.faces.size() * 4;
  file.line(1, "geomCustom");
  file.line(2, "{");
  file.line(2, "numbVerts ", prop.mesh.points.size());
  file.line(2, "numbTVerts ", prop.mesh.texturePoints.size());
  file.line(2, "numbTSets ", corners);
  file.line(2, "numbElems ", prop.mesh.faces.size());
  file.line(2, "numbSets ", corners);
  writeMeshObj(file, 2, prop.name, prop.mesh, materialNames(prop));
  file.line(2, "}");
}

void writePropStorage(TextFile& file, const Prop& prop) {
  file.line(0, "prop ", prop.name);
  file.line(1, "{");
  file.line(1, "storageOffset 0 0.3487 0");
  if (prop.geometry.empty()) {
    writeEmbeddedMesh(file, prop);
  } else {
    file.line(1, "objFileGeom 0 0 ", prop.geometry);
  }
  file.line(1, "}");
}

void writeProp(TextFile& file, const Prop& prop) {
  const ActorFrame frame{.kind = "prop",
                         .name = prop.name,
                         .title = prop.title,
                         .parent = prop.parent,
                         .origin = prop.mesh.centres.front(),
                         .end = prop.mesh.centres.back(),
                         .bends = false,
                         .hasOwnMaterials = true};
  openActor(file, frame);
  std::vector<Delta> deltas;
  for (const PropMorph& morph : prop.morphs) {
    findDeltas(morph.shape, prop.mesh, 1, deltas);
    writeMorphChannel(file, morph.name, morph.name, {}, deltas, prop.mesh.points.size());
  }
  for (const Channel& dial : propDials()) {
    openChannel(file, dial);
    closeChannel(file);
  }
  closeChannels(file, frame);
  writeMaterials(file, prop.materials);
  closeActor(file);
}

Section level(const Point& centre, Units width, Units depth) {
  return {centre, planPoint(-width, 0, 0), planPoint(0, 0, depth)};
}

// A cuboid of four sides whose corners lie on u and v.
std::vector<Section> cuboid(const Point& centre, Units width, Units height, Units depth) {
  const Point u = planPoint(-width, 0, -depth);
  const Point v = planPoint(-width, 0, depth);
  return {{centre - planPoint(0, height, 0), u, v}, {centre + planPoint(0, height, 0), u, v}};
}

Mesh tubeMesh(const std::vector<Section>& sections, const Density& density,
              const MaterialRule& rule) {
  return meshOf({.sections = sections, .density = density, .cell = {}}, rule);
}

int firstMaterial(int, int) {
  return 0;
}

std::string geometryPath(const std::string& name) {
  return ":Runtime:Geometries:Tilda:" + name + ".obj";
}

}  // namespace

void writePropFile(TextFile& file, const std::vector<Prop>& props) {
  openLibraryFile(file);
  for (const Prop& prop : props) writePropStorage(file, prop);
  for (const Prop& prop : props) writeProp(file, prop);
  file.line(0, "doc");
  file.line(1, "{");
  for (const Prop& prop : props) file.line(1, "addActor ", prop.name);
  file.line(1, "}");
  file.line(0, "}");
}

void writePropObj(TextFile& file, const Prop& prop) {
  writeMeshObj(file, 0, prop.name, prop.mesh, materialNames(prop));
}

Prop ballProp() {
  constexpr Units radius = 300;
  std::vector<Section> sections;
  for (Units i = 1; i <= 7; ++i) {
    const Units width = radius * sineOf(i, 16) / 1'000'000;
    const Units height = radius - radius * cosineOf(i, 16) / 1'000'000;
    sections.push_back(level(planPoint(1200, height, 900), width, width));
  }
  return {"tildaBall",
          "Ball",
          "UNIVERSE",
          geometryPath("tildaball"),
          tubeMesh(sections, {8, 8}, [](int, int around) { return around % 250 < 125 ? 0 : 1; }),
          {{"ballRed", "0.8 0.15 0.1", "0.6 0.6 0.6", 70, ""},
           {"ballWhite", "0.95 0.95 0.9", "0.6 0.6 0.6", 70, ""}},
          {}};
}

Prop staffProp() {
  const std::vector<Section> sections{
      level(planPoint(-3400, 3000, 0), 40, 40), level(planPoint(-3400, 6800, 0), 40, 40),
      level(planPoint(-3400, 6900, 0), 90, 90), level(planPoint(-3400, 7000, 0), 40, 40)};
  return {"tildaStaff",
          "Staff",
          "rHand:1",
          geometryPath("tildastaff"),
          tubeMesh(sections, {8, 8}, [](int along, int) { return along < 333 ? 0 : 1; }),
          {{"wood", "0.5 0.35 0.2", "0.1 0.1 0.1", 20, ""},
           {"knob", "0.85 0.7 0.3", "0.9 0.85 0.6", 95, ""}},
          {}};
}

Prop boxProp() {
  return {"tildaBox",
          "Box",
          "UNIVERSE",
          "",
          tubeMesh(cuboid(planPoint(-1200, 250, 900), 300, 250, 250), {4, 4}, firstMaterial),
          {{"boxWood", "0.6 0.45 0.3", "0.1 0.1 0.1", 20, ""}},
          {{"Wide", {ShapeKind::swell, 500, wholePart}}}};
}

Prop buckleProp() {
  return {"tildaBuckle:1",
          "Buckle",
          "hip:1",
          geometryPath("tildabuckle"),
          tubeMesh(cuboid(planPoint(0, 3840, 500), 70, 45, 20), {4, 4}, firstMaterial),
          {{"brass", "0.8 0.65 0.25", "0.9 0.8 0.5", 90, ""}},
          {}};
}

// A cap of hair, low at the back and open at the face.
Prop hairProp() {
  const std::vector<Section> sections{
      {planPoint(0, 6480, -30), planPoint(-530, 0, 0), planPoint(0, 280, 660)},
      {planPoint(0, 6800, 0), planPoint(-460, 0, 0), planPoint(0, 60, 560)},
      level(planPoint(0, 7000, 0), 260, 320),
      level(planPoint(0, 7060, 0), 60, 80)};
  const Tube tube{.sections = sections, .density = {8, 56}, .hasStartCap = false, .cell = {}};
  return {"tildaHair",
          "Hair",
          "head:1",
          geometryPath("tildahair"),
          meshOf(tube, [](int along, int) { return along > 333 ? 0 : 1; }),
          {{"hair", "0.3 0.2 0.1", "0.25 0.2 0.15", 35, texturePath("tildahair")},
           {"hairTips", "0.45 0.3 0.15", "0.25 0.2 0.15", 35, texturePath("tildahair")}},
          {{"Fuller", {ShapeKind::swell, 200, {300, 600}}},
           {"Wavy", {ShapeKind::roughen, 60, {0, 700}}}}};
}

}  // namespace norvik::examples
