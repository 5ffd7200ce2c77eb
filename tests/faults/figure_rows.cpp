// What the main form does to a figure: the repairs on the way into the lists and into the editor,
// and the saves.

#include "faults/rows.h"

namespace norvik::tests {

namespace {

constexpr const char* kFigure = "figures/doll.cr2";
const std::string kOpen = "choose C:\\figures\\doll.cr2\nclick MenuFileOpen\n";

/// A figure of several pieces. Every line has `front` in front and `end` behind it.
std::string figure(const std::string& texture, const std::string& front = {},
                   const std::string& end = "\r\n") {
  const std::string lines =
      "{\r\nfigureResFile :Runtime:Geometries:doll:doll.obj\r\nactor BODY:1\r\n\t{\r\n\t}\r\n"
      "figure\r\n\t{\r\n\tmaterial skin\r\n\t\t{\r\n\ttextureMap " +
      texture + "\r\n" + manyLines("\t\td") + "\t\t}\r\n\tpresetMaterial skin\r\n\t}\r\n}\r\n";
  std::string framed;
  std::size_t at = 0;
  for (std::size_t next = 0; at < lines.size(); at = next + 2) {
    next = lines.find("\r\n", at);
    framed += front + lines.substr(at, next - at) + end;
  }
  return framed;
}

const std::string kOld = "C:maps:old.tif";
const std::string kNew = "C:maps:new.tif";

/// The line ends are made conventional. The old figure stays under a further name; what goes wrong
/// is told of an open that cannot go on alone.
ToolUnderFaults repair(const std::string& end, const std::string& running) {
  ToolUnderFaults tool{
      "Repair", {{kFigure, figure(kOld, {}, end)}, {"figures/other.cr2", "another figure"}},
      {},       running,
      kFigure,  figure(kOld),
      {}};
  tool.scratch = {"figures/doll.new", "figures/dollCR2.bak"};
  tool.silent = true;
  return tool;
}

ToolUnderFaults repairOfTheEditor() {
  ToolUnderFaults tool = repair("\n",
                                "answer No\nanswer Yes\nchoose C:\\figures\\doll.cr2\n"
                                "click FormEditor.PictureSecFile\n");
  tool.opening = "put LabelFileNameForEditor caption C:\\figures\\other.cr2\nclick menuEditor\n";
  return tool;
}

ToolUnderFaults chopper() {
  ToolUnderFaults tool{"SpaceChopper",
                       {{kFigure, figure(kOld, " ", "\r\n")}},
                       "chdir C:\\figures\n",
                       kOpen,
                       kFigure,
                       figure(kOld),
                       {}};
  tool.scratch = {"figures/Chop.doc"};
  return tool;
}

/// A path was edited. A save that fails is not told, as it never was.
ToolUnderFaults save(const std::string& running, const std::string& target) {
  ToolUnderFaults tool{"Save",
                       {{kFigure, figure(kOld)}, {"figures/other.cr2", "another figure"}},
                       kOpen + "type TextMainTex " + kNew + "\ndouble-click TextMainTex\n",
                       "choose C:\\figures\\" + target + "\n" + running,
                       "figures/" + target,
                       figure(kNew),
                       {}};
  tool.silent = true;
  return tool;
}

ToolUnderFaults saveBeforeOpen() {
  const std::string twice = "choose C:\\figures\\doll.cr2\n";
  return save("answer Yes\n" + twice + "cancel\nclick MenuFileOpen\n", "doll.cr2");
}

}  // namespace

FaultRows figureRows() {
  const std::string repaired = "answer OK\n" + kOpen;
  const std::string as = "click MenuFileSaveAs\n";
  return {{"RepairAtOpen", [=] { return repair("\n", repaired); }},
          {"RepairOfLoneReturns", [=] { return repair("\r", repaired); }},
          {"RepairOfTheEditor", repairOfTheEditor},
          {"SpaceChopper", chopper},
          {"Save", [] { return save("click MenuFileSave\n", "doll.cr2"); }},
          {"SaveAsNew", [] { return save("click MenuFileSave\n", "new.cr2"); }},
          {"SaveAs", [=] { return save(as, "doll.cr2"); }},
          {"SaveAsOverAnother", [=] { return save(as, "other.cr2"); }},
          {"SaveBeforeOpen", saveBeforeOpen},
          {"SaveAtTheExit", [] { return save("answer Yes\nexit\n", "doll.cr2"); }}};
}

}  // namespace norvik::tests
