// The tools that change channels.

#include "faults/rows.h"

namespace norvik::tests {

namespace {

constexpr const char* kFigure = "figures/doll.cr2";
constexpr const char* kOther = "figures/other.cr2";
constexpr const char* kUnique = "figures/doll_Unique.cr2";
constexpr const char* kOld = "an older figure\r\n";

std::string manyDeltas(int count) {
  std::string deltas;
  for (int i = 0; i < count; ++i) deltas += "\t\t\t\td " + std::to_string(i) + " 0.01 0.02 0\r\n";
  return deltas;
}

std::string morph(const std::string& name) {
  return "\t\ttargetGeom " + name + "\r\n\t\t\t{\r\n\t\t\tname " + name +
         "\r\n\t\t\tinitValue 0\r\n\t\t\thidden 0\r\n\t\t\tforceLimits 0\r\n"
         "\t\t\ttrackingScale 0.02\r\n\t\t\tinterpStyleLocked 0\r\n\t\t\tdeltas\r\n\t\t\t\t{\r\n";
}

std::string joint(const std::string& keyword, const std::string& angle) {
  return "\t\t" + keyword + "\r\n\t\t\t{\r\n\t\t\tangle " + angle + "\r\n\t\t\t}\r\n";
}

std::string figure(const std::string& angle, int deltas) {
  const std::string storage = "\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n";
  const std::string reference = "figureResFile :Runtime:Geometries:doll.obj\r\n";
  const std::string morphEnd = "\t\t\t\t}\r\n\t\t\t}\r\n";
  return "{\r\n" + reference + "actor BODY:1" + storage + "actor head:1" + storage + reference +
         "actor BODY:1\r\n\t{\r\n\tname\tBody\r\n\tbend 1\r\n\tchannels\r\n\t\t{\r\n"
         "\t\ttranslateX xt\r\n\t\t\t{\r\n\t\t\thidden 0\r\n\t\t\t}\r\n\t\t}\r\n\t}\r\n"
         "actor head:1\r\n\t{\r\n\tname\tHead\r\n\tbend 1\r\n\tchannels\r\n\t\t{\r\n" +
         morph("Smile") + manyDeltas(deltas) + morphEnd + morph("Frown") + morphEnd +
         joint("twistY lThigh_twisty", angle) + joint("jointX lThigh_jointx", angle) +
         "\t\t}\r\n\t}\r\nfigure\r\n\t{\r\n\tinkyChain Leg\r\n\tdefaultPick head:1\r\n"
         "\tmaterial skin\r\n\t\t{\r\n\t\tKdColor 1 1 1 1\r\n\t\tKaColor 0 0 0 1\r\n"
         "\t\tKsColor 0 0 0 1\r\n\t\ttextureMap NO_MAP\r\n\t\tFigure 1\r\n\t\t}\r\n\t}\r\n}\r\n";
}

/// One use of a tool.
struct Tool {
  std::string name;
  std::string before;  ///< what brings it so far
  std::string act;     ///< the act that the fault falls into
  std::string target;  ///< the file that it changes; empty if none of the operator's
  std::string done;    ///< of the words that it ends with
  bool inPlace = false;
  bool large = false;  ///< the figure is written in several pieces
};

std::vector<Tool> tools() {
  const std::string second = "select ListActors 3\n";
  const std::string pick =
      "double-click-item ListActors head:1\nselect ListChannelsReorderByPart 1\n";
  const std::string hide = "click menuHideDialsChannels\nselect ListHideDialsChannels 0\n";
  const std::string labels = "click menuHideDialsTrans\nitem ListActors head:1\n";
  const std::string source = "choose C:\\figures\\source.cr2\nclick LabelOpenSource\n";
  const std::string toFigure = "choose C:\\figures\\doll.cr2\n";
  const std::string toOther = "choose C:\\figures\\other.cr2\n";
  const std::string reorder = "click PictureChannelReorderDone\n";
  const std::string dials = "click CommandDialHideDone\n";
  return {
      {"Reorder", pick, toFigure + reorder, kFigure, {}},
      {"ReorderOntoOther", pick, toOther + reorder, kOther, {}},
      {"HideDials", hide, toFigure + dials, kFigure, {}},
      {"HideDialsOntoOther", hide, toOther + dials, kOther, {}},
      {"TrackingSpeed",
       "click menuDialTrackSpeed\nselect ListChannelsReorder 0\ntype TextTrackingSpeed 3\n",
       "key TextTrackingSpeed Enter\n", kFigure, "speed changed"},
      {"Bend", second, "click MenuBendOff\n", kFigure, "Bending turned off", false, true},
      {"IkChains", "answer Yes\n", "click MenuDumpIK\n", kFigure, "have been removed"},
      {"UniqueName", "answer OK\nclick menuERCUnique\ntype TextERCUnique Ann\n",
       "key TextERCUnique Enter\n", kUnique, "saved as"},
      {"Joints",
       source + "item ListChannels head:1\n" + second,
       "click PictureJoints\n",
       kFigure,
       {}},
      {"TranslateDials", labels + "answer Yes\n", "click LabelX\n", kFigure, "now it is hidden",
       true},
      {"ForceLimits", "type TextForceLimits head\nanswer Yes\n", "key TextForceLimits Enter\n",
       kFigure, "they are forced", true},
      {"TwistRemoved", {}, "item ListTwistRemove Thigh\n", kFigure, "commented out", true},
      {"Mirror",
       "click menuMirror\nitem ListChannels Smile\nanswer No\n",
       "double-click-item ListActors head:1\n",
       {},
       {}},
      {"Extract",
       "item ListActors head:1\nclick PictureViewChannels\nitem ListChannels Smile\n",
       "right-click ListChannels\n",
       {},
       {}},
  };
}

ToolUnderFaults underFaults(const Tool& tool) {
  const int deltas = tool.large ? 9000 : 9;
  ToolUnderFaults row{tool.name,
                      {{kFigure, figure("5", deltas)},
                       {"figures/source.cr2", figure("7", deltas)},
                       {kOther, kOld},
                       {kUnique, kOld},
                       {"Poser/Runtime/Geometries/doll.obj", "v 1 2 3\r\ng head\r\nf 1 1 1\r\n"}},
                      "choose C:\\figures\\doll.cr2\nclick MenuFileOpen\n" + tool.before,
                      tool.act,
                      tool.target,
                      {},
                      {},
                      tool.done};
  row.inPlace = tool.inPlace;
  return row;
}

}  // namespace

FaultRows dialRows() {
  FaultRows rows;
  for (const Tool& tool : tools()) {
    rows.push_back({tool.name, [tool] { return underFaults(tool); }});
  }
  return rows;
}

}  // namespace norvik::tests
