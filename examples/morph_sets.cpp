#include "morph_sets.h"

#include <algorithm>
#include <string>
#include <utility>

namespace norvik::examples {

namespace {

using enum ShapeKind;

// Index of a classic part in the plan.
std::size_t partNamed(const std::string& name) {
  static const std::vector<BodyPart> plan = bodyPlan(classicPartCount);
  return static_cast<std::size_t>(
      std::find_if(plan.begin(), plan.end(), [&](const BodyPart& p) { return p.name == name; }) -
      plan.begin());
}

Morph partMorph(const std::string& part, const std::string& name, const Shape& shape,
                std::vector<Master> masters = {}) {
  return {name, name, false, {{partNamed(part), shape, std::move(masters)}}};
}

Morph withDial(Morph morph, std::string dial) {
  morph.dial = std::move(dial);
  return morph;
}

Morph fullBodyMorph(const std::string& name, int strength, const std::vector<std::string>& parts) {
  Morph morph{name, name, true, {}};
  for (const std::string& part : parts) {
    morph.parts.push_back({partNamed(part), {swell, strength, wholePart}, {}});
  }
  return morph;
}

// Lets a second dial drive the morph in one of its parts.
Morph withSecondMaster(Morph morph, const std::string& part, const Master& master) {
  for (MorphPart& entry : morph.parts) {
    if (entry.part == partNamed(part)) entry.masters.push_back(master);
  }
  return morph;
}

const std::vector<std::string>& trunk() {
  static const std::vector<std::string> names{"hip", "abdomen", "chest", "neck", "head"};
  return names;
}

const std::vector<std::string>& limbs() {
  static const std::vector<std::string> names{
      "rCollar", "rShldr", "rForeArm", "rHand", "lCollar", "lShldr", "lForeArm", "lHand",
      "rThigh",  "rShin",  "rFoot",    "rToe",  "lThigh",  "lShin",  "lFoot",    "lToe"};
  return names;
}

std::vector<Morph> firstSet() {
  return {
      withSecondMaster(fullBodyMorph("FBMStout", 220, trunk()), "chest",
                       {"BODY:1", "FBMLean", "-0.400000"}),
      fullBodyMorph("FBMLean", -180, limbs()),
      partMorph("head", "LongHead", {stretch, 180, wholePart}),
      partMorph("head", "RoundHead", {swell, 200, {500, 500}}),
      partMorph("head", "ChinOut", {bulge, 350, {167, 160}}),
      partMorph("neck", "ThinNeck", {swell, -250, {500, 500}}),
      partMorph("chest", "BarrelChest", {bulge, 300, {400, 400}}),
      partMorph("abdomen", "Belly", {bulge, 600, {500, 500}}, {{"BODY:1", "FBMStout", "0.500000"}}),
      partMorph("hip", "WideHips", {swell, 180, {500, 500}}),
      partMorph("rForeArm", "FlexRight", {swell, 240, {350, 350}},
                {{"rForeArm:1", "yrot", "-0.009000"}}),
      partMorph("lForeArm", "FlexLeft", {swell, 240, {350, 350}},
                {{"lForeArm:1", "yrot", "0.009000"}}),
      withDial(partMorph("rShin", "CalfR", {swell, 260, {350, 350}}), "Right Calf"),
      withDial(partMorph("lShin", "CalfL", {swell, 260, {350, 350}}), "Left Calf"),
      partMorph("lHand", "RoughHand", {roughen, 150, {600, 400}}),
  };
}

std::vector<Morph> secondSet() {
  return {
      withSecondMaster(fullBodyMorph("FBMStout", 300, trunk()), "abdomen",
                       {"BODY:1", "FBMBroad", "0.300000"}),
      fullBodyMorph("FBMBroad", 160, limbs()),
      partMorph("head", "LongHead", {stretch, 260, wholePart}),
      partMorph("head", "FlatFace", {bulge, -300, {500, 500}}),
      partMorph("head", "HighCrown", {swell, 350, {833, 300}}),
      partMorph("neck", "BullNeck", {swell, 400, {500, 500}}),
      partMorph("chest", "BarrelChest", {swell, 220, {450, 450}}),
      partMorph("abdomen", "Belly", {bulge, 350, {350, 350}}),
      partMorph("abdomen", "Wasp", {swell, -300, {500, 500}},
                {{"BODY:1", "FBMBroad", "-0.250000"}}),
      partMorph("rThigh", "StrongRight", {swell, 220, {500, 500}}),
      partMorph("lThigh", "StrongLeft", {swell, 220, {500, 500}}),
      withDial(partMorph("rShin", "CalfR", {swell, 400, {300, 300}}), "Right Calf"),
      withDial(partMorph("lShin", "CalfL", {swell, 400, {300, 300}}), "Left Calf"),
      partMorph("lHand", "Mitten", {swell, 300, {500, 500}}),
  };
}

}  // namespace

std::vector<Morph> namedMorphs(MorphSet set) {
  return set == MorphSet::first ? firstSet() : secondSet();
}

std::vector<Link> namedLinks() {
  return {
      {"lThigh:1", "lShin_jointx", {"BODY:1", "FBMStout", "0.100000"}},
      {"rThigh:1", "rShin_jointx", {"BODY:1", "FBMStout", "0.100000"}},
      {"neck:1", "yrot", {"head:1", "yrot", "0.400000"}},
  };
}

}  // namespace norvik::examples
