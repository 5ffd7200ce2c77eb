#pragma once

#include "units.h"

#include <cstddef>
#include <string>
#include <vector>

namespace norvik::examples {

// The axis that runs along a bone: it tells which channels bend and which twist.
enum class Axis { x, y, z };

// The figure's materials, in the order of the material blocks.
enum class Material { skin, lips, eyes, suit, shoes };

// An ellipse across a limb. u, v and the direction of the limb are a right-handed set, v points to
// the figure's front.
struct Section {
  Point centre;
  Point u;
  Point v;
};

inline constexpr int noParent = -1;

struct BodyPart {
  std::string name;
  // The number of the translated name in Poser's table of body part names, 0 for a part that has
  // none there.
  int title = 0;
  // Index in the plan, always smaller than the part's own; noParent hangs the part from BODY.
  int parent = noParent;
  // The first section is the parent's last one, and the mesh has those vertices once.
  bool continuesParent = false;
  Axis axis = Axis::y;
  Material material = Material::skin;
  std::vector<Section> sections{};
};

// How many parts the plan knows by their classic names.
inline constexpr std::size_t classicPartCount = 21;

// The first `count` parts of a mannequin 0.7 high whose feet stand on the ground. Beyond the
// classic ones the hip grows a tail, one part a link.
std::vector<BodyPart> bodyPlan(std::size_t count);

// Whether a later part of the plan goes on where this one ends.
bool isContinued(const std::vector<BodyPart>& plan, std::size_t part);

}  // namespace norvik::examples
