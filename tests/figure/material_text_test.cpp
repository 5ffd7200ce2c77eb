// Colours and material blocks as text.

#include "figure/colour_text.h"
#include "figure/material_block.h"
#include "support/drive.h"
#include "support/error_number.h"
#include "text/first_dot.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace norvik::tests {

TEST(ColourText, IsRedGreenAndBlueInDecimal) {
  EXPECT_EQ(figure::LongToHexS(graphics::colourOf(255, 128, 1)), "255G128B1");
  EXPECT_EQ(figure::LongToHexS(0), "0G0B0");
}

TEST(ColourText, FileValueIsDividedBy256WithAllItsDigits) {
  EXPECT_EQ(figure::fileValue(255), " .99609375");
  EXPECT_EQ(figure::fileValue(129), " .50390625");
  EXPECT_EQ(figure::fileValue(128), " .5");
  EXPECT_EQ(figure::fileValue(26), " .1015625");
  EXPECT_EQ(figure::fileValue(25), " .09765625");
  EXPECT_EQ(figure::fileValue(16), " .0625");
  EXPECT_EQ(figure::fileValue(1), " .00390625");
  EXPECT_EQ(figure::fileValue(0), " 0");
}

TEST(ColourText, FileValuesAreInTheOrderOfTheFile) {
  const auto values = figure::fileValues(graphics::colourOf(64, 128, 192));
  EXPECT_EQ(values[0], " .25");
  EXPECT_EQ(values[1], " .5");
  EXPECT_EQ(values[2], " .75");
}

TEST(MaterialBlock, TellsItsLines) {
  EXPECT_TRUE(figure::isMaterialField("material skin"));
  EXPECT_FALSE(figure::isMaterialField("presetMaterial skin"));
  EXPECT_TRUE(figure::isMaterialLine("\tmaterial skin"));
  EXPECT_FALSE(figure::isMaterialLine("\t\tmaterial skin"));
  EXPECT_EQ(figure::materialName("material my skin"), "my skin");
  EXPECT_TRUE(figure::endsMaterials("\tdisplayMode USEPARENT"));
  EXPECT_TRUE(figure::endsMaterials("\tpresetMaterial skin"));
  EXPECT_FALSE(figure::endsMaterials("\t\ttMin 0"));
}

TEST(MaterialBlock, FindsANameAtALinesEnd) {
  const std::vector<std::string> names{"skin", "lips"};
  EXPECT_TRUE(figure::endsInOneOf("\tmaterial skin", names));
  EXPECT_TRUE(figure::endsInOneOf("\tmaterial headskin", names));
  EXPECT_FALSE(figure::endsInOneOf("\tmaterial skin ", names));
  EXPECT_FALSE(figure::endsInOneOf("kin", names));
}

TEST(MaterialBlock, FigureIsFoundByFields) {
  Drive drive;
  drive.folder.write("a.cr2", "figureResFile :x\r\n\tname figure\r\nname,\tfigure, x\r\nrest\r\n");
  text::LineReader in(drive.disk, "C:\\a.cr2");
  figure::passToFigure(in);
  EXPECT_EQ(in.field(), "x");
  EXPECT_EQ(errorNumber([&] { figure::passToFigure(in); }), 62);
}

TEST(MaterialBlock, DefaultBlockHasSeventeenKeys) {
  Drive drive;
  text::LineWriter out(drive.disk, "C:\\a.cr2");
  figure::writeDefaultMaterial(out, "nail polish");
  out.close();
  EXPECT_EQ(drive.folder.read("a.cr2"),
            "\tmaterial nail polish\r\n\t\t{\r\n"
            "\t\tKdColor 1 1 1 1\r\n\t\tKaColor 0 0 0 1\r\n"
            "\t\tKsColor 0.156863 0.129412 0.0980392 1\r\n\t\tTextureColor 1 1 1 1\r\n"
            "\t\tNsExponent 30\r\n\t\ttMin 0\r\n\t\ttMax 0\r\n\t\ttExpo 0.6\r\n"
            "\t\tbumpStrength 0\r\n\t\tksIgnoreTexture 0\r\n\t\treflectThruLights 1\r\n"
            "\t\ttextureMap NO_MAP\r\n\t\tbumpMap NO_MAP\r\n\t\treflectionMap NO_MAP\r\n"
            "\t\ttransparencyMap NO_MAP\r\n\t\tReflectionColor 1 1 1 1\r\n"
            "\t\treflectionStrength 1\r\n\t\t}\r\n");
}

TEST(FirstDot, CutsNamesThereWithAndWithoutIt) {
  EXPECT_EQ(text::throughFirstDot("C:\\x\\scene.pz3", "mtl"), "C:\\x\\scene.mtl");
  EXPECT_EQ(text::throughFirstDot("C:\\my.files\\scene.pz3", "mtl"), "C:\\my.mtl");
  EXPECT_EQ(text::throughFirstDot("C:\\scene", "mtl"), "C:\\scenemtl");
  EXPECT_EQ(text::beforeFirstDot("C:\\x\\scene.pz3", "-AVI.pp2"), "C:\\x\\scene-AVI.pp2");
  EXPECT_EQ(text::beforeFirstDot("C:\\scene", "-AVI.pp2"), "C:\\scene-AVI.pp2");
}

}  // namespace norvik::tests
