// Which lines of a scene belong to its figure, whatever pieces they come in.

#include "builders/scenes/figure_sections.h"

#include "support/drive.h"

#include <gtest/gtest.h>

#include <vector>

namespace norvik::tests {

namespace {

std::string figureOf(const std::vector<std::string>& pieces) {
  Drive drive;
  {
    text::LineWriter out(drive.disk, "C:\\out.cr2");
    builders::FigureSections figure(out);
    for (const std::string& piece : pieces) figure.add(piece);
    out.close();
  }
  return drive.folder.read("out.cr2");
}

std::string noteOn(const std::string& scene) {
  Drive drive;
  text::LineWriter out(drive.disk, "C:\\out.cr2");
  builders::FigureSections figure(out);
  figure.add(scene);
  return figure.note();
}

}  // namespace

TEST(FigureSections, BlanksTabsAndBracesBeginNoSection) {
  EXPECT_EQ(figureOf({"{\nlight LIGHT1\n x\n\ty\n\n{\nfigure\n z\n{\n}\n"}),
            "{\r\nfigure\r\n z\r\n{\r\n}\r\n");
}

TEST(FigureSections, ASectionGoesOnInTheNextPiece) {
  EXPECT_EQ(figureOf({"prop GROUND\n", "\t{\n", "\t}\nfigure\n\tsetGeomHandlerOffset 0 0 0\n",
                      "\t}\nprop late\n\tx\n", "}\n"}),
            "figure\r\n\tsetGeomHandlerOffset 0 0 0\r\n\t}\r\n}\r\n");
}

TEST(FigureSections, LineEndsOfAnyKindBecomeCrLf) {
  EXPECT_EQ(figureOf({"a\rb\n\rprop GROUND\r\rc\r\n", "d"}), "a\r\nb\r\n\r\nc\r\nd\r\n");
}

TEST(FigureSections, TellsWhatStaysOut) {
  EXPECT_EQ(noteOn("{\nactor hip:1\nfigure\n}\n"), "");
  EXPECT_EQ(noteOn("light LIGHT1\ncamera A_CAMERA\ncamera B_CAMERA\nprop GROUND\nfigure\n"),
            "Left out: 1 light, 2 cameras, the ground");
  EXPECT_EQ(noteOn("figure\n\tsetGeom\nprop hat\ndoc\n"),
            "Left out: the scene's settings, 1 other section");
}

TEST(FigureSections, TellsOfSeveralFigures) {
  EXPECT_EQ(noteOn("figure\nfigure\n"), "The scene has 2 figures: look the result through");
}

}  // namespace norvik::tests
