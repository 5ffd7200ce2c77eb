#include "channel_writer.h"

#include <array>

namespace norvik::examples {

namespace {

// Poser keeps the names of its own dials in a table, in the user's language.
std::string dialText(int number) {
  return "GetStringRes(1028," + std::to_string(number) + ")";
}

constexpr int taperText = 1;
constexpr int twistText = 2;
constexpr int sideText = 3;
constexpr int bendText = 4;
constexpr int frontBackText = 24;

struct Turn {
  std::string_view kind;
  std::string_view name;
  int text;
  int low;
  int high;
};

// A turn about the bone is a twist; what the others are called depends on how the bone lies.
std::array<Turn, 3> turnsOf(Axis along) {
  switch (along) {
    case Axis::x:
      return {{{"rotateZ", "zrot", bendText, -90, 90},
               {"rotateX", "xrot", twistText, -80, 80},
               {"rotateY", "yrot", frontBackText, -120, 120}}};
    case Axis::y:
      return {{{"rotateZ", "zrot", sideText, -50, 50},
               {"rotateX", "xrot", bendText, -90, 90},
               {"rotateY", "yrot", twistText, -60, 60}}};
    case Axis::z:
      break;
  }
  return {{{"rotateZ", "zrot", twistText, -40, 40},
           {"rotateX", "xrot", bendText, -60, 60},
           {"rotateY", "yrot", sideText, -35, 35}}};
}

void addScales(std::vector<Channel>& dials, std::array<std::string_view, 4> kinds) {
  const std::array<std::string_view, 4> names{"scale", "xScale", "yScale", "zScale"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    dials.push_back({.kind = kinds[i],
                     .name = std::string(names[i]),
                     .dial = dialText(5 + static_cast<int>(i)),
                     .value = 1});
  }
}

void addMoves(std::vector<Channel>& dials, std::array<std::string_view, 3> names, bool isHidden) {
  const std::array<std::string_view, 3> kinds{"translateX", "translateY", "translateZ"};
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    dials.push_back({.kind = kinds[i],
                     .name = std::string(names[i]),
                     .dial = dialText(12 + static_cast<int>(i)),
                     .isHidden = isHidden,
                     .tracking = "0.004"});
  }
}

void addFreeTurns(std::vector<Channel>& dials, std::array<std::string_view, 3> names) {
  const std::array<std::string_view, 3> kinds{"rotateY", "rotateX", "rotateZ"};
  const std::array<int, 3> texts{10, 9, 11};
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    dials.push_back({.kind = kinds[i],
                     .name = std::string(names[i]),
                     .dial = dialText(texts[i]),
                     .tracking = "1"});
  }
}

}  // namespace

void openChannel(TextFile& file, const Channel& channel, const std::vector<Master>& masters) {
  file.line(2, channel.kind, " ", channel.name);
  file.line(3, "{");
  file.line(3, "name ", channel.dial);
  file.line(3, "initValue ", channel.value);
  file.line(3, "hidden ", channel.isHidden ? "1" : "0");
  file.line(3, "forceLimits ", channel.forcesLimits ? "1" : "0");
  file.line(3, "min ", channel.low);
  file.line(3, "max ", channel.high);
  file.line(3, "trackingScale ", channel.tracking);
  file.line(3, "keys");
  file.line(4, "{");
  file.line(4, "static  0");
  file.line(4, "k  0  ", channel.value);
  file.line(4, "}");
  file.line(3, "interpStyleLocked 0");
  for (const Master& master : masters) {
    file.line(3, "valueOpDeltaAdd");
    file.line(4, "Figure 1");
    file.line(4, master.actor);
    file.line(4, master.channel);
    file.line(3, "deltaAddDelta ", master.ratio);
  }
}

void closeChannel(TextFile& file) {
  file.line(3, "}");
}

void writeMorphChannel(TextFile& file, const std::string& name, const std::string& dial,
                       const std::vector<Master>& masters, const std::vector<Delta>& deltas,
                       std::size_t pointCount) {
  openChannel(file,
              {.kind = "targetGeom",
               .name = name,
               .dial = dial,
               .forcesLimits = true,
               .low = -1,
               .high = 1,
               .tracking = "0.02"},
              masters);
  file.line(3, "indexes ", deltas.size());
  file.line(3, "numbDeltas ", pointCount);
  file.line(3, "deltas");
  file.line(4, "{");
  for (const Delta& delta : deltas) {
    file.line(4, "d ", delta.index, " ", Fixed8{delta.offset.x}, " ", Fixed8{delta.offset.y}, " ",
              Fixed8{delta.offset.z});
  }
  file.line(4, "}");
  closeChannel(file);
}

Channel fullBodyDial(const Morph& morph) {
  return {.kind = "valueParm", .name = morph.name, .dial = morph.dial, .tracking = "0.02"};
}

std::vector<Channel> bodyDials() {
  std::vector<Channel> dials;
  addScales(dials,
            {"propagatingScale", "propagatingScaleX", "propagatingScaleY", "propagatingScaleZ"});
  addFreeTurns(dials, {"yrot", "xrot", "zrot"});
  addMoves(dials, {"xtran", "ytran", "ztran"}, false);
  return dials;
}

std::vector<Channel> partDials(const BodyPart& part) {
  static const std::array<std::string_view, 3> tapers{"taperX", "taperY", "taperZ"};
  std::vector<Channel> dials{{.kind = tapers[static_cast<std::size_t>(part.axis)],
                              .name = part.name,
                              .dial = dialText(taperText)}};
  addScales(dials, {"scale", "scaleX", "scaleY", "scaleZ"});
  for (const Turn& turn : turnsOf(part.axis)) {
    dials.push_back({.kind = turn.kind,
                     .name = std::string(turn.name),
                     .dial = dialText(turn.text),
                     .low = turn.low,
                     .high = turn.high,
                     .tracking = "1"});
  }
  addMoves(dials, {"xtran", "ytran", "ztran"}, part.parent != noParent);
  return dials;
}

std::vector<Channel> propDials() {
  std::vector<Channel> dials;
  addScales(dials, {"scale", "scaleX", "scaleY", "scaleZ"});
  addFreeTurns(dials, {"yRotate", "xRotate", "zRotate"});
  addMoves(dials, {"xTran", "yTran", "zTran"}, false);
  return dials;
}

char capital(Axis axis) {
  return "XYZ"[static_cast<std::size_t>(axis)];
}
char small(Axis axis) {
  return "xyz"[static_cast<std::size_t>(axis)];
}

std::vector<Axis> bendAxes(Axis along) {
  switch (along) {
    case Axis::x:
      return {Axis::y, Axis::z};
    case Axis::y:
      return {Axis::x, Axis::z};
    case Axis::z:
      break;
  }
  return {Axis::x, Axis::y};
}

}  // namespace norvik::examples
