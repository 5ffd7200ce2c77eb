#include "pose_writer.h"

#include "actor_writer.h"
#include "channel_writer.h"

#include <algorithm>
#include <string_view>

namespace norvik::examples {

namespace {

class PoseWriter {
 public:
  PoseWriter(TextFile& file, const std::vector<PoseSetting>& settings)
      : file_(file), settings_(settings) {}

  void openActor(const std::string& name) {
    actor_ = name;
    file_.line(0, "actor ", name);
    file_.line(1, "{");
    file_.line(1, "channels");
    file_.line(2, "{");
  }

  void writeKey(std::string_view kind, const std::string& channel, int rest) {
    const auto found = std::find_if(settings_.begin(), settings_.end(), [&](const auto& setting) {
      return setting.actor == actor_ && setting.channel == channel;
    });
    file_.line(2, kind, " ", channel);
    file_.line(3, "{");
    file_.line(3, "keys");
    file_.line(4, "{");
    file_.line(4, "k  0  ", found == settings_.end() ? std::to_string(rest) : found->value);
    file_.line(4, "}");
    file_.line(3, "}");
  }

  void closeActor() {
    file_.line(2, "}");
    file_.line(1, "}");
  }

 private:
  TextFile& file_;
  const std::vector<PoseSetting>& settings_;
  std::string actor_;
};

bool isIn(const Morph& morph, std::size_t part) {
  return std::any_of(morph.parts.begin(), morph.parts.end(),
                     [&](const MorphPart& entry) { return entry.part == part; });
}

}  // namespace

void writePose(TextFile& file, const Figure& figure, const std::vector<PoseSetting>& settings) {
  openLibraryFile(file);
  PoseWriter writer(file, settings);
  writer.openActor(actorName("BODY"));
  for (const Morph& morph : figure.morphs) {
    if (morph.isFullBody) writer.writeKey("valueParm", morph.name, 0);
  }
  for (const Channel& dial : bodyDials()) writer.writeKey(dial.kind, dial.name, dial.value);
  writer.closeActor();
  for (std::size_t part = 0; part < figure.parts.size(); ++part) {
    writer.openActor(actorName(figure.parts[part].name));
    for (const Morph& morph : figure.morphs) {
      if (isIn(morph, part)) writer.writeKey("targetGeom", morph.name, 0);
    }
    for (const Channel& dial : partDials(figure.parts[part])) {
      writer.writeKey(dial.kind, dial.name, dial.value);
    }
    writer.closeActor();
  }
  file.line(0, "figure");
  file.line(1, "{");
  file.line(1, "}");
  file.line(0, "}");
}

std::vector<PoseSetting> wavePose() {
  return {{"BODY:1", "FBMLean", "0.35"},     {"head:1", "LongHead", "0.2"},
          {"head:1", "zrot", "-8"},          {"head:1", "yrot", "12.5"},
          {"chest:1", "zrot", "4"},          {"abdomen:1", "Belly", "0.15"},
          {"rShldr:1", "zrot", "72"},        {"rForeArm:1", "yrot", "6.25"},
          {"lShldr:1", "zrot", "35.5"},      {"lForeArm:1", "zrot", "80"},
          {"lForeArm:1", "FlexLeft", "0.4"}, {"lHand:1", "xrot", "-15"},
          {"rThigh:1", "zrot", "-3"},        {"lThigh:1", "xrot", "-10"},
          {"lShin:1", "xrot", "14"},         {"lFoot:1", "xrot", "-4"}};
}

}  // namespace norvik::examples
