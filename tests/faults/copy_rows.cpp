// Copies of morphs and links.

#include "faults/rows.h"

namespace norvik::tests {

namespace {

/// A figure whose head holds what `channels` says.
std::string figure(const std::string& channels) {
  const std::string storage = "\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n";
  const std::string reference = "figureResFile :Runtime:Geometries:doll.obj\r\n";
  return "{\r\n" + reference + "actor BODY:1" + storage + "actor head:1" + storage + reference +
         "actor BODY:1\r\n\t{\r\n\tname\tBody\r\n\t}\r\n"
         "actor head:1\r\n\t{\r\n\tname\tHead\r\n\tchannels\r\n\t\t{\r\n" +
         channels +
         "\t\t}\r\n\t}\r\n"
         "figure\r\n\t{\r\n\tmaterial skin\r\n\t\t{\r\n\t\tKdColor 1 1 1 1\r\n\t\tKaColor 0 0 0 1"
         "\r\n\t\tKsColor 0 0 0 1\r\n\t\ttextureMap NO_MAP\r\n\t\t}\r\n\t}\r\n}\r\n";
}

const std::string kEntry = "\t\ttargetGeom Smile\r\n\t\t\t{\r\n\t\t\tname Smile\r\n";
const std::string kHeader = "\t\t\tinitValue 0\r\n\t\t\tinterpStyleLocked 0\r\n";
const std::string kLink =
    "\t\t\tvalueOpDeltaAdd\r\n\t\t\tFigure 1\r\n\t\t\tBODY:1\r\n\t\t\tGrin\r\n"
    "\t\t\tdeltaAddDelta 1.0\r\n";
const std::string kEnd = "\t\t\t}\r\n";
const std::string kTwist = "\t\ttwistY t\r\n\t\t\t{\r\n\t\t\t}\r\n";

struct Figures {
  std::string source;
  std::string destination;
  std::string result;
};

Figures morphCopy() {
  const std::string morph = kEntry + kHeader + manyLines("\t\t\t\td") + kEnd;
  return {figure(morph + kTwist), figure(kTwist), figure(morph + kTwist)};
}

Figures linkCopy() {
  const std::string head = kEntry + kHeader;
  return {figure(head + kLink + kEnd + kTwist), figure(head + kEnd + kTwist),
          figure(head + kLink + kEnd + kTwist)};
}

ToolUnderFaults copyOnto(const std::string& target, const Figures& figures,
                         const std::string& item) {
  return {"Copy",
          {{"figures/dest.cr2", figures.destination},
           {"figures/source.cr2", figures.source},
           {"figures/other.cr2", "an older figure\r\n"},
           // What runs before have left, after a No and after a run-time error.
           {"Norvik/InsertMorph.txt", "of an earlier run\r\n"},
           {"Norvik/SaveMorph.txt", "of an earlier run\r\n"}},
          "choose C:\\figures\\dest.cr2\nclick MenuFileOpen\n"
          "choose C:\\figures\\source.cr2\nclick LabelOpenSource\n"
          "item ListActors head:1\nclick PictureViewChannels\nitem ListChannels " +
              item + "\n",
          "answer Yes\nchoose C:\\figures\\" + target + "\nclick PictureCopyToDest\n",
          "figures/" + target,
          figures.result,
          {}};
}

}  // namespace

FaultRows copyRows() {
  const auto morphOnto = [](const std::string& target) {
    return [target] { return copyOnto(target, morphCopy(), "Smile"); };
  };
  return {{"Copy", morphOnto("dest.cr2")},
          {"CopyOntoOther", morphOnto("other.cr2")},
          {"CopyAsNew", morphOnto("new.cr2")},
          {"CopyOfALink", [] { return copyOnto("dest.cr2", linkCopy(), "Delta Control Ratio"); }}};
}

}  // namespace norvik::tests
