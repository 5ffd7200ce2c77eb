#pragma once

#include "body_plan.h"
#include "material_writer.h"
#include "mesh.h"
#include "shape.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace norvik::examples {

// The channel that drives another one, as an ERC block names it.
struct Master {
  std::string actor;  // with its figure number
  std::string channel;
  std::string ratio;
};

// A morph's share in one part.
struct MorphPart {
  std::size_t part;
  Shape shape;
  std::vector<Master> masters;
};

struct Morph {
  std::string name;
  std::string dial;
  // A full-body morph has a dial on BODY that drives the morph of its name in each part.
  bool isFullBody = false;
  std::vector<MorphPart> parts;
};

// An ERC block in a channel that is not a morph: a joint, say, that follows a dial.
struct Link {
  std::string actor;
  std::string channel;
  Master master;
};

// A prop that the figure brings along.
struct CarriedProp {
  std::string name;
  std::string title;
  std::string parent;
  std::string geometry;
  Point origin;
};

// Everything that a CR2 of the figure says.
struct Figure {
  std::string geometry;
  std::vector<BodyPart> parts;
  Density density{};
  std::vector<Morph> morphs;
  std::vector<Link> links;
  std::vector<CarriedProp> props;
  std::vector<MaterialBlock> materials;
  std::uint64_t seed = 1;
  // Each part gets further morphs, named so and numbered, until the file has about that many bytes;
  // 0 adds none.
  std::string fillerName;
  std::uint64_t fileSize = 0;
};

// Two sets of morphs over the same geometry. They share some names, under which they do different
// things.
enum class MorphSet { first, second };

struct FigureSettings {
  MorphSet set = MorphSet::first;
  std::size_t parts = classicPartCount;
  std::size_t morphs = 14;
  Density density{};
  std::uint64_t seed = 1;
  std::uint64_t fileSize = 0;
};

Figure makeFigure(const FigureSettings& settings);

// A part's or BODY's name as the library files have it: with the figure number, which is always 1
// here.
std::string actorName(const std::string& name);
// The actor that a part hangs from.
std::string parentActor(const Figure& figure, const BodyPart& part);

}  // namespace norvik::examples
