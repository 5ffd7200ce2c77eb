// Changes of colours and the coordination of materials.

#include "faults/rows.h"

namespace norvik::tests {

namespace {

std::string material(const std::string& name, const std::string& colour = "1 1 1 1") {
  return "\tmaterial " + name + "\r\n\t\t{\r\n\t\tKdColor " + colour +
         "\r\n\t\tKaColor 0 0 0 1\r\n\t\tKsColor 0 0 0 1\r\n\t\ttextureMap NO_MAP\r\n\t\t}\r\n";
}

/// A figure so large that it is written in several pieces.
std::string figure(const std::string& materials) {
  const std::string reference = "figureResFile :Runtime:Geometries:doll:doll.obj\r\n";
  std::string text = "{\r\n" + reference +
                     "actor BODY:1\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n" + reference +
                     "actor BODY:1\r\n\t{\r\n\tname Body\r\n\t}\r\nactor head:1\r\n\t{\r\n" +
                     manyLines("\t\t\t\td");
  return text + "\t}\r\nfigure\r\n\t{\r\n\tweld head:1\r\n\t\tBODY:1\r\n" + materials +
         "\tdisplayMode USEPARENT\r\n\t}\r\n}\r\n";
}

const std::string kOpen = "choose C:\\figures\\a.cr2\nclick MenuFileOpen\n";

ToolUnderFaults newColour(const std::string& target) {
  return {
      "Colour",
      {{"figures/a.cr2", figure(material("skin"))}, {"Norvik/color.txt", "an older result\r\n"}},
      kOpen + "item ListMaterials skin\n",
      "colour 128 0 0\nchoose C:\\figures\\" + target + "\nclick PictureMatColor\n",
      "figures/" + target,
      figure(material("skin", " .5  0  0 1")),
      {}};
}

ToolUnderFaults coordination() {
  return {"Coordination",
          {{"figures/a.cr2", figure(material("skin") + material("lips"))},
           {"Poser/Runtime/Geometries/doll/doll.obj", "usemtl skin\r\n"}},
          kOpen,
          "answer No\nchoose C:\\figures\\a.cr2\nclick MenuCoordMat\n",
          "figures/a.cr2",
          figure(material("skin")),
          {}};
}

}  // namespace

FaultRows materialRows() {
  return {{"ColourInPlace", [] { return newColour("a.cr2"); }},
          {"ColourOfACopy", [] { return newColour("b.cr2"); }},
          {"Coordination", coordination}};
}

}  // namespace norvik::tests
