#include "dials/dial_names.h"

#include <algorithm>
#include <array>

namespace norvik::dials {

namespace {

constexpr auto kDials = std::to_array<std::string_view>(
    {"Taper",      "Twist",   "Side-Side",  "Bend",    "Scale",   "xScale", "yScale",
     "zScale",     "xRotate", "yRotate",    "zRotate", "xTrans",  "yTrans", "zTrans",
     "Focal",      "Pitch",   "Yaw",        "Roll",    "Red",     "Green",  "Blue",
     "Intensity",  "Turn",    "Front-Back", "Dollyx",  "Dollyy",  "Dollyz", "Shadow",
     "Map Size",   "Panx",    "Pany",       "Zoom",    "xTranB",  "yTranB", "zTranB",
     "xOffset",    "yOffset", "zOffset",    "xOrbit",  "yOrbit",  "zOrbit", "Hand Type",
     "BreastSize", "OriginX", "OriginY",    "OriginZ", "Fatness", "Grasp",  "Thumb Grasp",
     "Spread",     "Curve",   "curve",      "Up-Down"});

constexpr auto kParts =
    std::to_array<std::string_view>({"Body",           "Head",           "Neck",
                                     "Chest",          "Abdomen",        "Hip",
                                     "Left Thigh",     "Left Shin",      "Left Foot",
                                     "Right Thigh",    "Right Shin",     "Right Foot",
                                     "Left Shoulder",  "Left Forearm",   "Left Hand",
                                     "Right Shoulder", "Right Forearm",  "Right Hand",
                                     "Left Collar",    "Right Collar",   "Jaw",
                                     "Left Pinky 1",   "Left Pinky 2",   "Left Pinky 3",
                                     "Right Pinky 1",  "Right Pinky 2",  "Right Pinky 3",
                                     "Left Ring 1",    "Left Ring 2",    "Left Ring 3",
                                     "Right Ring 1",   "Right Ring 2",   "Right Ring 3",
                                     "Left Mid 1",     "Left Mid 2",     "Left Mid 3",
                                     "Right Mid 1",    "Right Mid 2",    "Right Mid 3",
                                     "Left Index 1",   "Left Index 2",   "Left Index 3",
                                     "Right Index 1",  "Right Index 2",  "Right Index 3",
                                     "Left Thumb 1",   "Left Thumb 2",   "Left Thumb 3",
                                     "Right Thumb 1",  "Right Thumb 2",  "Right Thumb 3",
                                     "Left Toe",       "Right Toe",      "Neck 1",
                                     "Neck 2",         "Right Finger 1", "Right Claw 1",
                                     "Right Finger 2", "Right Claw 2",   "Right Finger 3",
                                     "Right Claw 3",   "Left Finger 1",  "Left Claw 1",
                                     "Left Finger 2",  "Left Claw 2",    "Left Finger 3",
                                     "Left Claw 3",    "Right Toe 1",    "Right Toe 2",
                                     "Left Toe 1",     "Left Toe 2",     "Tail 1",
                                     "Tail 2",         "Tail 3",         "Tail 4",
                                     "Left Up Arm",    "Right Up Arm",   "Left Wrist",
                                     "Right Wrist",    "Lower Neck",     "Upper Neck",
                                     "Left Leg",       "Right Leg",      "Left Ankle",
                                     "Right Ankle",    "Waist",          "Left Ear 1",
                                     "Right Ear 1",    "Left Ear 2",     "Right Ear 2",
                                     "Left Ear 3",     "Right Ear 3",    "Tail Fins",
                                     "Right Pect Fin", "Left Pect Fin",  "Body 1",
                                     "Body 2",         "Body 3",         "Body 4",
                                     "Body 5",         "Left Eye",       "Right Eye",
                                     "innerMatSphere", "outerMatSphere", "nullMatSphere"});

}  // namespace

std::span<const std::string_view> dialNames() {
  return kDials;
}

std::span<const std::string_view> partNames() {
  return kParts;
}

std::optional<int> numberOf(std::span<const std::string_view> names, std::string_view name) {
  const auto found = std::find(names.begin(), names.end(), name);
  if (found == names.end()) return std::nullopt;
  return static_cast<int>(found - names.begin()) + 1;
}

}  // namespace norvik::dials
