// Links and ratios.

#include "faults/rows.h"

namespace norvik::tests {

namespace {

const std::string kOldLink =
    "\t\t\tvalueOpDeltaAdd\r\n\t\t\t\tFigure 1\r\n\t\t\t\tBODY:1\r\n\t\t\t\tGrin\r\n"
    "\t\t\tdeltaAddDelta 1.0\r\n";

std::string figure(const std::string& links, const std::string& ratioLine) {
  const std::string storage = "\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n";
  const std::string reference = "figureResFile :Runtime:Geometries:doll.obj\r\n";
  const std::string head = "\r\n\t\t\t{\r\n\t\t\tname Dial\r\n\t\t\tinterpStyleLocked 0\r\n";
  return "{\r\n" + reference + "actor BODY:1" + storage + "actor head:1" + storage + reference +
         "actor BODY:1\r\n\t{\r\n\tname\tBody\r\n\tparent UNIVERSE\r\n\t}\r\n"
         "actor head:1\r\n\t{\r\n\tname\tHead\r\n\tchannels\r\n\t\t{\r\n"
         "\t\ttargetGeom Smile" +
         head + links + manyLines("\t\t\t\td") + "\t\t\t}\r\n\t\ttargetGeom Smirk" + head +
         "\t\t\tvalueOpDeltaAdd\r\n\t\t\t\tFigure 1\r\n\t\t\t\tBODY:1\r\n\t\t\t\tGrin\r\n" +
         ratioLine +
         "\t\t\t}\r\n\t\t}\r\n\t}\r\n"
         "figure\r\n\t{\r\n\tname    Doll\r\n\tmaterial skin\r\n\t\t{\r\n\t\tKdColor 1 1 1 1\r\n"
         "\t\tKaColor 0 0 0 1\r\n\t\tKsColor 0 0 0 1\r\n\t\ttextureMap NO_MAP\r\n\t\t}\r\n\t}\r\n"
         "}\r\n";
}

const std::string kRatio = "\t\t\tdeltaAddDelta 2.5\r\n";
const std::string kLink =
    "\t\t\tvalueOpDeltaAdd\r\n\t\t\t   Doll\r\n\t\t\thead\r\n\t\t\tSmirk\r\n"
    "\t\t\tdeltaAddDelta 1.000000\r\n";

ToolUnderFaults linkTool(const std::string& scratch, const std::string& choices,
                         const std::string& act, const std::string& old,
                         const std::string& result) {
  return {"Link",
          {{"figures/doll.cr2", old}, {scratch, "of an earlier run\r\n"}},
          "choose C:\\figures\\doll.cr2\nclick MenuFileOpen\n" + choices,
          act,
          "figures/doll.cr2",
          result,
          {}};
}

ToolUnderFaults link(const std::string& oldLinks, const std::string& answers) {
  return linkTool("Norvik/EMC.tmp",
                  "click PictureEMC\nclick DialogERC.OptionPBM\nload FormECM\n"
                  "item FormECM.ListControlledMorph Smile\nitem FormECM.ListControlledMorph Smirk\n"
                  "item FormECM.ListActorsECM head:1\n",
                  answers + "choose C:\\figures\\doll.cr2\nkey FormECM.TextPBMRatio Enter\n",
                  figure(oldLinks, kRatio), figure(kLink, kRatio));
}

ToolUnderFaults ratio() {
  ToolUnderFaults tool = linkTool(
      "Norvik/ChangeRatio.txt",
      "click PictureChangeRatio\nitem FormListEMCs.ListEMCs Delta\ntype FormListEMCs.Text1 0.125\n",
      "answer Yes\nchoose C:\\figures\\doll.cr2\nkey FormListEMCs.Text1 Enter\n",
      figure({}, kRatio), figure({}, "\t\t\tdeltaAddDelta 0.125\r\n"));
  tool.silent = true;
  return tool;
}

}  // namespace

FaultRows linkRows() {
  return {{"Link", [] { return link({}, {}); }},
          {"SecondLink", [] { return link(kOldLink, "answer Yes\n"); }},
          {"Ratio", ratio}};
}

}  // namespace norvik::tests
