#pragma once
// The pose tools in their plainest form: read by read over a text that is all there.

#include <string>
#include <vector>

namespace norvik::fuzz {

using Lines = std::vector<std::string>;

/// What a tool leaves: lists, the lines that it wrote, and the error that ended it, 0 for none.
struct PlainPose {
  Lines first;
  Lines second;
  Lines third;
  Lines fourth;
  Lines out;
  int error = 0;
};

/// The body parts of a file; they go to `first`.
PlainPose plainParts(const std::string& text);

/// The pose of the wanted parts.
PlainPose plainPartsPose(const std::string& text, bool scene, const Lines& wanted);

enum class PlainKind { figure, hair, prop };

/// The materials of a file in `first`, their colours in `second`, the hair's prop line in `third`.
PlainPose plainMatLists(const std::string& text, PlainKind kind);

struct PlainMat {
  PlainKind kind = PlainKind::figure;
  bool all = false;
  bool maps = false;
  bool noTrans = false;
  bool white = false;
  Lines wanted = {};
  Lines colours = {};
  std::string propLine = {};
};

/// The MAT file of a file's materials.
PlainPose plainMat(const std::string& text, const PlainMat& choice);

/// The skeleton of a MOR file; the morphs go to `first`.
PlainPose plainSkeleton(const std::string& text);

/// The MOR file of a skeleton.
PlainPose plainMor(const std::string& skeleton, const Lines& values);

/// The morphs of a pose: names, key lines, kinds, actors.
PlainPose plainSettings(const std::string& text);

/// The weld of a pose with the selected settings of another; the missing ones go to `first`.
PlainPose plainWeld(const std::string& text, const PlainPose& own, const PlainPose& given,
                    const std::vector<int>& selected);

}  // namespace norvik::fuzz
