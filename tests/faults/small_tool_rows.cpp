// The dial renamer and the sheets of graph paper.

#include "faults/rows.h"
#include "graphics/bmp.h"

namespace norvik::tests {

namespace {

/// The scratch file lies in the current folder.
ToolUnderFaults renaming(const std::string& direction, const std::string& before,
                         const std::string& after, const std::string& folder) {
  const std::string lines = manyLines("\t\t\t\td");
  return {"Renaming",
          {{"figures/a.cr2", before + lines + before},
           {"figures/other.cr2", "another figure\r\n"},
           {"Norvik/Dials.tmp", "an older result\r\n"}},
          "chdir C:\\" + folder +
              "\nload Renamer\ntype Renamer.Dir1 C:\\figures\nitem Renamer.File1 a.cr2\n"
              "click Renamer." +
              direction + "\n",
          "drop Renamer.Label1 Renamer.Picture1\n",
          "figures/a.cr2",
          after + lines + after,
          {},
          {},
          {folder + "/Dials.tmp"}};
}

/// A sheet of 20 by 10: red lines at 0, a blue one at 10.
std::string sheet() {
  constexpr int kWidth = 20;
  constexpr int kHeight = 10;
  graphics::Surface surface(kWidth, kHeight);
  surface.line({10, 0}, {10, kHeight}, graphics::colourOf(0, 0, 128));
  surface.line({0, 0}, {0, kHeight}, graphics::colourOf(255, 0, 0));
  surface.line({0, 0}, {kWidth, 0}, graphics::colourOf(255, 0, 0));
  return graphics::bmpBytes(surface);
}

ToolUnderFaults paper(bool there) {
  ToolUnderFaults tool{"GraphPaper",
                       {{"paper/other.bmp", "another picture"}},
                       "chdir C:\\paper\nload FormScale\ntype FormScale.TextHorizontal 20\n"
                       "type FormScale.TextVertical 10\n",
                       "key FormScale.TextVertical Enter\n",
                       "paper/20X10.bmp",
                       sheet(),
                       {},
                       "Graphpaper saved as"};
  if (there) tool.files["paper/20X10.bmp"] = "an older sheet";
  return tool;
}

}  // namespace

FaultRows smallToolRows() {
  const std::string number = "\t\t\tname GetStringRes(1028,4)\r\n";
  const std::string bend = "\t\t\tname Bend\r\n";
  return {{"DialsToFriendly", [=] { return renaming("LabelFriendly", number, bend, "figures"); }},
          {"DialsReverted", [=] { return renaming("LabelGetSR", bend, number, "Norvik"); }},
          {"GraphPaper", [] { return paper(false); }},
          {"GraphPaperInPlace", [] { return paper(true); }}};
}

}  // namespace norvik::tests
