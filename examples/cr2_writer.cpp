#include "cr2_writer.h"

#include "actor_writer.h"
#include "channel_writer.h"
#include "joint_writer.h"
#include "random.h"

#include <algorithm>
#include <string>
#include <utility>

namespace norvik::examples {

namespace {

std::string titleOf(const BodyPart& part) {
  return part.title == 0 ? part.name : "GetStringRes(1024," + std::to_string(part.title) + ")";
}

void writeBody(TextFile& file, const Figure& figure) {
  const ActorFrame frame{.name = actorName("BODY"),
                         .title = "GetStringRes(1024,1)",
                         .parent = "UNIVERSE",
                         .end = planPoint(0, 3500, 0),
                         .showsOrigin = true};
  openActor(file, frame);
  for (const Morph& morph : figure.morphs) {
    if (!morph.isFullBody) continue;
    openChannel(file, fullBodyDial(morph));
    closeChannel(file);
  }
  for (const Channel& dial : bodyDials()) {
    openChannel(file, dial);
    closeChannel(file);
  }
  closeChannels(file, frame);
  closeActor(file);
}

// Writes one part after the other, each with its share of the bytes that the file is to have.
class PartsWriter {
 public:
  PartsWriter(TextFile& file, const Figure& figure) : file_(file), figure_(figure) {}

  std::size_t write() {
    for (std::size_t part = 0; part < figure_.parts.size(); ++part) writePart(part);
    return morphChannels_;
  }

 private:
  // What a part needs behind its morphs, about.
  static constexpr std::uint64_t bytesBehindMorphs = 9000;

  void writePart(std::size_t part) {
    const BodyPart& body = figure_.parts[part];
    const ActorFrame frame{.name = actorName(body.name),
                           .title = titleOf(body),
                           .parent = parentActor(figure_, body),
                           .origin = originOf(body),
                           .end = endOf(body)};
    const std::uint64_t end = file_.size() + share(part);
    openActor(file_, frame);
    writeMorphs(part, end);
    writeJoints(file_, figure_, part);
    for (const Channel& dial : partDials(body)) {
      openChannel(file_, dial, mastersOf(figure_, body, dial.name));
      closeChannel(file_);
    }
    closeChannels(file_, frame);
    closeActor(file_);
  }

  [[nodiscard]] std::uint64_t share(std::size_t part) const {
    const std::uint64_t size = file_.size();
    return size < figure_.fileSize ? (figure_.fileSize - size) / (figure_.parts.size() - part) : 0;
  }

  void writeMorphs(std::size_t part, std::uint64_t end) {
    const Mesh mesh = partMesh(figure_.parts, part, figure_.density);
    for (const Morph& morph : figure_.morphs) {
      for (const MorphPart& entry : morph.parts) {
        if (entry.part != part) continue;
        std::vector<Master> masters;
        if (morph.isFullBody) masters.push_back({actorName("BODY"), morph.name, "1.000000"});
        masters.insert(masters.end(), entry.masters.begin(), entry.masters.end());
        writeMorph(morph.name, morph.dial, masters, entry.shape, mesh);
      }
    }
    const std::string stem = figure_.parts[part].name + figure_.fillerName;
    Random random(figure_.seed * 1'000'003 + part);
    for (std::size_t i = 1; file_.size() + bytesBehindMorphs < end; ++i) {
      const Shape shape{static_cast<ShapeKind>(i % 4),
                        static_cast<int>(random.between(50, 300)),
                        {500, static_cast<int>(random.between(400, 900))}};
      const std::string name = stem + std::to_string(i);
      writeMorph(name, name, {}, shape, mesh);
    }
  }

  void writeMorph(const std::string& name, const std::string& dial,
                  const std::vector<Master>& masters, const Shape& shape, const Mesh& mesh) {
    ++morphChannels_;
    findDeltas(shape, mesh, figure_.seed + morphChannels_, deltas_);
    writeMorphChannel(file_, name, dial, masters, deltas_, mesh.points.size());
  }

  TextFile& file_;
  const Figure& figure_;
  std::size_t morphChannels_ = 0;
  std::vector<Delta> deltas_;
};

void writeCarriedProp(TextFile& file, const CarriedProp& prop) {
  const ActorFrame frame{.kind = "prop",
                         .name = prop.name,
                         .title = prop.title,
                         .parent = prop.parent,
                         .origin = prop.origin,
                         .end = prop.origin + planPoint(0, 100, 0),
                         .bends = false};
  openActor(file, frame);
  for (const Channel& dial : propDials()) {
    openChannel(file, dial);
    closeChannel(file);
  }
  closeChannels(file, frame);
  closeActor(file);
}

void writeHierarchy(TextFile& file, const Figure& figure) {
  file.line(1, "root    BODY:1");
  for (const BodyPart& part : figure.parts) {
    file.line(1, "addChild    ", actorName(part.name));
    file.line(3, parentActor(figure, part));
  }
  for (const CarriedProp& prop : figure.props) {
    file.line(1, "addChild    ", prop.name);
    file.line(3, prop.parent);
  }
}

// A chain for each leg that the figure has.
void writeChains(TextFile& file, const Figure& figure) {
  const auto has = [&](const std::string& name) {
    return std::any_of(figure.parts.begin(), figure.parts.end(),
                       [&](const BodyPart& part) { return part.name == name; });
  };
  const auto write = [&](const std::string& chain, int title, const std::string& side) {
    if (!has(side + "Foot")) return;
    file.line(1, "inkyChain ", chain);
    file.line(2, "{");
    file.line(2, "off");
    file.line(2, "name    GetStringRes(1024,", title, ")");
    file.line(2, "addLink    ", actorName(side + "Thigh"));
    file.line(2, "addLink    ", actorName(side + "Shin"));
    file.line(2, "goal    ", actorName(side + "Foot"));
    file.line(2, "linkWeight 0 0.1");
    file.line(2, "linkWeight 1 0.4");
    file.line(2, "}");
  };
  write("RightLeg", 83, "r");
  write("LeftLeg", 82, "l");
}

void writeWelds(TextFile& file, const Figure& figure) {
  for (auto part = figure.parts.rbegin(); part != figure.parts.rend(); ++part) {
    if (part->parent == noParent) continue;
    file.line(1, "weld    ", actorName(part->name));
    file.line(3, parentActor(figure, *part));
  }
}

}  // namespace

std::size_t writeCr2(TextFile& file, const Figure& figure) {
  openLibraryFile(file);
  writeStorage(file, figure);
  file.line(0, "figureResFile ", figure.geometry);
  const std::size_t morphChannels = writeActors(file, figure);
  writeFigureBlock(file, figure);
  file.line(0, "}");
  return morphChannels;
}

void writeStorage(TextFile& file, const Figure& figure) {
  file.line(0, "figureResFile ", figure.geometry);
  file.line(0, "actor BODY:1");
  file.line(1, "{");
  file.line(0);
  file.line(1, "}");
  for (const BodyPart& part : figure.parts) {
    file.line(0, "actor ", actorName(part.name));
    file.line(1, "{");
    file.line(1, "storageOffset 0 0 0");
    file.line(1, "geomHandlerGeom 13 ", part.name);
    file.line(1, "}");
  }
  for (const CarriedProp& prop : figure.props) {
    file.line(0, "prop ", prop.name);
    file.line(1, "{");
    file.line(1, "storageOffset 0 0.3487 0");
    file.line(1, "objFileGeom 0 0 ", prop.geometry);
    file.line(1, "}");
  }
}

std::size_t writeActors(TextFile& file, const Figure& figure) {
  writeBody(file, figure);
  const std::size_t morphChannels = PartsWriter(file, figure).write();
  for (const CarriedProp& prop : figure.props) writeCarriedProp(file, prop);
  return morphChannels;
}

void writeFigureBlock(TextFile& file, const Figure& figure) {
  file.line(0, "figure");
  file.line(1, "{");
  file.line(1, "name    Figure 1");
  writeHierarchy(file, figure);
  writeChains(file, figure);
  file.line(1, "defaultPick ", actorName(figure.parts.front().name));
  file.line(1, "displayOn 1");
  writeWelds(file, figure);
  file.line(1, "allowsBending 1");
  file.line(1, "figureType 1000");
  file.line(1, "origFigureType 1000");
  file.line(1, "canonType 5");
  file.line(1, "conforming 0");
  writeMaterials(file, figure.materials);
  writePresets(file, figure.materials);
  file.line(1, "displayMode USEPARENT");
  file.line(1, "locked 0");
  file.line(1, "setGeomHandlerOffset 0 0.3487 0");
  file.line(1, "}");
}

}  // namespace norvik::examples
