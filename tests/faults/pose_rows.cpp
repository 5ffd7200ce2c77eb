// Poses, MAT files, MOR files and welds.

#include "faults/rows.h"

namespace norvik::tests {

namespace {

const std::string kHead =
    "{\r\nversion\r\n\t{\r\n\tnumber 4.01\r\n\t}\r\nfigureResFile :Runtime:Geometries:doll.obj\r\n";

std::string longBlock() {
  std::string lines;
  constexpr int kLines = 300;
  for (int i = 0; i < kLines; ++i)
    lines += "\t\tline " + std::to_string(i) + " of a long block\r\n";
  return lines;
}

const std::string kReference = "figureResFile :Runtime:Geometries:doll.obj\r\n";

std::string headBlock() {
  return "actor head:1\r\n\t{\r\n\tname Head\r\n\t\ttargetGeom Smile\r\n" + longBlock() +
         "figure\r\n\t{\r\n\tmaterial lips\r\n\t\t{\r\n\t\tKdColor 1 1 1 1\r\n" +
         "\t\tKaColor 0 0 0 1\r\n\t\tKsColor 0 0 0 1\r\n" + longBlock() +
         "\t\t}\r\n\tdisplayMode X\r\n\t}\r\n}\r\n";
}

std::string figure() {
  return kHead + kReference + "actor neck:1\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n" +
         kReference + headBlock();
}

std::string channel(const std::string& name, const std::string& value) {
  return "\t\ttargetGeom " + name + "\r\n\t\t\t{\r\n\t\t\tkeys\r\n\t\t\t{\r\n\t\t\tk 0 " + value +
         "\r\n\t\t\t}\r\n\t\t\t}\r\n";
}

std::string pose(const std::string& channels) {
  return "{\r\nversion\r\n\t{\r\n\tnumber 4.01\r\n\t}\r\nactor "
         "head:1\r\n\t{\r\n\tchannels\r\n\t\t{\r\n" +
         channels + longBlock() + "\t\t}\r\n\t}\r\n}\r\n";
}

/// A tool up to the click that writes, and what it then leaves.
struct Tool {
  const char* name;
  std::string source;   ///< the file of the main pane
  std::string text;     ///< of the source
  std::string prepare;  ///< behind the opening of the source
  std::string finish;
  std::string result;
  bool silent;  ///< whether a save that fails says nothing
};

Tool poseBuilder() {
  return {"Pose",
          "doll.cr2",
          figure(),
          "click MenuPoseFile\ndouble-click-item FormPZ2.ListActorsPZ2 head\n",
          "click FormPZ2.LabelDonePZ2\n",
          kHead + kReference + headBlock() + "}\r\n",
          false};
}

Tool matBuilder() {
  return {"Mat",
          "doll.cr2",
          figure(),
          "click menuMatFile\nclick FormPZ2.CheckAllMat\n",
          "choose C:\\figures\\dollNew.pz2\nclick FormPZ2.LabelDonePZ2\n",
          "{\r\n \r\nVersion\r\n\t{\r\n\tNumber 4.01\r\n\t}\r\nfigure\r\n{\r\n\tmaterial "
          "lips\r\n\t\t{\r\n"
          "\t\tKdColor 1 1 1 1\r\n\t\tKaColor 0 0 0 1\r\n\t\tKsColor 0 0 0 1\r\n" +
              longBlock() + "\t\t}\r\n}\r\n}\r\n",
          true};
}

Tool morBuilder() {
  return {"Mor",
          "doll.cr2",
          figure(),
          "click MenuMor\nselect FormMOR.ListMorphs 0\ntype FormMOR.TextValue .5\nkey "
          "FormMOR.TextValue Enter\n",
          "choose C:\\figures\\dollNew.pz2\nclick FormMOR.LabelDone\n",
          "{\r\nversion\r\n\t{\r\n\tnumber 4.01\r\n\t}\r\nactor "
          "head:1\r\n\t{\r\n\tchannels\r\n\t\t{\r\n" +
              channel("Smile", "0.5") + "\t\t}\r\n\t}\r\n}\r\n",
          true};
}

/// One morph is met, one is inserted.
Tool welder() {
  const std::string second = "C:\\figures\\second.pz2";
  return {"Weld",
          "first.pz2",
          pose(channel("Smile", "1")),
          "click menuCombinePZ2\nchoose " + second +
              "\nclick FormPZ2Combine.LabelOpenSecond\nselect FormPZ2Combine.ListFile2 0 1\n",
          "answer No\nchoose C:\\figures\\dollNew.pz2\nclick FormPZ2Combine.LabelDone\n",
          pose(channel("Frown", "3") + channel("Smile", "2")),
          false};
}

/// Saved over an older file, or as a new one.
ToolUnderFaults saved(Tool (*make)(), bool over) {
  const Tool tool = make();
  ToolUnderFaults row{
      tool.name,
      {{"figures/" + tool.source, tool.text},
       {"figures/second.pz2", pose(channel("Smile", "2") + channel("Frown", "3"))}},
      "choose C:\\figures\\" + tool.source + "\nclick MenuFileOpen\n" + tool.prepare,
      tool.finish,
      "figures/dollNew.pz2",
      tool.result,
      {}};
  if (over) row.files["figures/dollNew.pz2"] = "an older file\r\n";
  row.silent = tool.silent;
  return row;
}

}  // namespace

FaultRows poseRows() {
  struct Maker {
    std::string name;
    Tool (*make)();
  };
  FaultRows rows;
  for (const Maker& maker : {Maker{"Pose", poseBuilder}, Maker{"Mat", matBuilder},
                             Maker{"Mor", morBuilder}, Maker{"Weld", welder}}) {
    rows.push_back({maker.name + "OverOld", [maker] { return saved(maker.make, true); }});
    rows.push_back({maker.name + "AsNew", [maker] { return saved(maker.make, false); }});
  }
  return rows;
}

}  // namespace norvik::tests
