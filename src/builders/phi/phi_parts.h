#pragma once
// The body parts of a figure as phi files list them.

#include <array>
#include <string_view>

namespace norvik::builders {

/// A body part that is sought by its name once hip, abdomen and chest are written.
struct PhiPart {
  static constexpr int kCounterStays = -1;

  std::string_view name;
  /// What the depth counter becomes before the part is sought. A part that is found raises it by
  /// one and has that depth, so one that is missing leaves those below it a step too high until the
  /// counter is set again.
  int counter = kCounterStays;
};

/// In the order of a phi file. Of the fingers only the middle ones go on from their hand.
inline constexpr std::array<PhiPart, 48> kPhiParts{{
    {"lCollar"}, {"lShldr"},     {"lForeArm"},   {"lHand"},    {"lMid1"},      {"lMid2"},
    {"lMid3"},   {"lIndex1", 7}, {"lIndex2"},    {"lIndex3"},  {"lRing1", 7},  {"lRing2"},
    {"lRing3"},  {"lPinky1", 7}, {"lPinky2"},    {"lPinky3"},  {"lThumb1", 7}, {"lThumb2"},
    {"lThumb3"}, {"rCollar", 3}, {"rShldr"},     {"rForeArm"}, {"rHand"},      {"rMid1"},
    {"rMid2"},   {"rMid3"},      {"rIndex1", 7}, {"rIndex2"},  {"rIndex3"},    {"rRing1", 7},
    {"rRing2"},  {"rRing3"},     {"rPinky1", 7}, {"rPinky2"},  {"rPinky3"},    {"rThumb1", 7},
    {"rThumb2"}, {"rThumb3"},    {"neck", 3},    {"head"},     {"lThigh", 1},  {"lShin"},
    {"lFoot"},   {"lToe"},       {"rThigh", 1},  {"rShin"},    {"rFoot"},      {"rToe"},
}};

}  // namespace norvik::builders
