// What follows a read: low meshes and morphs; and the view without 3D.

#include "workshop/mesh_bench.h"

namespace norvik::obj {
namespace {

using Names = std::vector<std::string>;
using LowMesh = MeshBench;
using Morph = MeshBench;
using NoDX = MeshBench;

constexpr graphics::Colour kGreen = 0x008000;
constexpr graphics::Colour kBlue = 0x800000;

TEST_F(LowMesh, IsRaisedAndReadFromItsOwnFile) {
  form.OptionShowPoints.setValue(true);
  workshop.spin.SpinSpeed = 5;
  view({"# low", "v 0.1 0.09 0.3", " v 0.1 0.09 0.3", "v 0.2 0.00123 0.5 1", "g hip", "f 1 2 3",
        "f 1"});
  EXPECT_EQ(drive.folder.read("Norvik/Param.obj"),
            "# low\r\nv 0.1 .9 0.3\r\n v 0.1 0.09 0.3\r\nv 0.2 1.23 0.5 1\r\ng hip\r\nf 1 2 3\r\n"
            "f 1\r\n");
  EXPECT_EQ(vertices(), (Names{"v 0.1 .9 0.3", "v 0.1 0.09 0.3", "v 0.2 1.23 0.5 1"}));
  EXPECT_EQ(mesh.BiggestY, 1.23F);
  EXPECT_EQ(mesh.FaceCount, 2);
  EXPECT_EQ(form.caption(), "OBJ Viewer C:\\a.obj");
  EXPECT_EQ(opening.LabelOBJFileName.caption(), "C:\\a.obj");
  EXPECT_FALSE(form.ReadParamObj);
  EXPECT_TRUE(form.LabelUVMap.visible());
  // The reset between the two reads.
  EXPECT_TRUE(form.OptionShowPolys.value());
  EXPECT_EQ(workshop.spin.SpinSpeed, 1);
}

TEST_F(LowMesh, BeginsBelowATenth) {
  view({"v 0.1 0.1 0", "f 1", "f 1"});
  EXPECT_FALSE(drive.folder.exists("Norvik/Param.obj"));
  view({"v 0.1 0.0999999 0", "f 1", "f 1"});
  EXPECT_TRUE(drive.folder.exists("Norvik/Param.obj"));
}

TEST_F(LowMesh, IsRaisedOnceHoweverLowItStays) {
  for (const char* y : {"0", "-5", "0.000"}) {
    view({"v 0.1 " + std::string{y} + " 0.5", "f 1", "f 1"});
    EXPECT_LE(mesh.BiggestY, 0);
    EXPECT_TRUE(form.LabelUVMap.visible());
  }
}

TEST_F(LowMesh, KeepsAnOldFileThatCannotGo) {
  drive.folder.write("Norvik/Param.obj", "old");
  drive.disk.setReadOnly("C:\\Norvik\\Param.obj", true);
  EXPECT_EQ(view({"v 0.1 0.01 0", "f 1", "f 1"}), 75);
  EXPECT_EQ(drive.folder.read("Norvik/Param.obj"), "old");
}

TEST_F(Morph, IsToldAndShownAsDots) {
  // x = 0.0125: 100 * (7.5 - 2.4) + 300 = 810, outside; x = 0.005: 100 * (3 - 2.4) + 300 = 360;
  // x = 0: 60. y = 0.25: 600 - (150 - 2.4) = 452.4. y = -0.2 counts as 0.8: 600 - (480 - 2.4).
  view({"v 0.005 0.25 7", "v 0.0 -0.2 7", "v 0.0125 0.5 7"});
  EXPECT_NE(
      takeEvents().find(R"("title":"Note!","text":"This is a morph obj -- no faces in the file.")"),
      std::string::npos);
  EXPECT_EQ(dots(form.PictureStore), (std::vector<Dot>{{60, 122, kGreen}, {360, 452, kGreen}}));
  EXPECT_EQ(dots(form.PictureStore2).size(), 0U);
}

TEST_F(Morph, IsWhatHasFewerThanTwoFaceRecords) {
  const auto isTold = [&](const Names& lines) {
    takeEvents();
    view(lines);
    return takeEvents().find("morph") != std::string::npos;
  };
  EXPECT_TRUE(isTold({"v 0.0 1 0"}));
  EXPECT_TRUE(isTold({"v 0.0 1 0", "f 1"}));
  EXPECT_TRUE(isTold({"v 0.0 1 0", "g hip"}));
  EXPECT_FALSE(isTold({"v 0.0 1 0", "g hip", "usemtl skin"}));
}

TEST_F(Morph, OfATinyPlaceIsShownWithoutItsExponent) {
  // y = 1.004: 600 - 602.4 + 2.4 is nearly nothing; whatever is left of it is the first row.
  view({"v 0.005 1.004 0"});
  ASSERT_EQ(dots(form.PictureStore).size(), 1U);
  EXPECT_EQ(dots(form.PictureStore)[0], (Dot{360, 0, kGreen}));
}

TEST_F(Morph, WithoutAVertexIsTold) {
  view({"# nothing"});
  EXPECT_NE(takeEvents().find("morph"), std::string::npos);
  EXPECT_EQ(dots(form.PictureStore).size(), 0U);
}

TEST_F(NoDX, ShowsTheFrontViewFromTheFileAlone) {
  put({"v 0.0 0.1 0.0", "v 0.1 0.1 0.05", "v 0.1 0.2 0.05", "v 0.0 0.2 0.05", "g hip",
       "f 1 2 3 4"});
  form.released.raise({front::MouseButton::left});
  EXPECT_FALSE(form.PictureNoDX.visible());
  form.released.raise({front::MouseButton::right});
  EXPECT_TRUE(form.PictureNoDX.visible());
  EXPECT_FALSE(form.PictureObjViewer2.visible());
  std::vector<Dot> triangle;
  for (int y = 480; y <= 540; ++y) {
    for (int x = 300 + (y - 480); x <= 360; ++x) triangle.push_back({x, y, kBlue});
  }
  EXPECT_EQ(dots(form.PictureNoDX), triangle);
  EXPECT_TRUE(mesh.vertices.empty());
  EXPECT_EQ(mesh.FaceCount, 0);
  EXPECT_EQ(form.ListGroups.count(), 0);
  EXPECT_FALSE(drive.folder.exists("Norvik/FArray.txt"));
}

TEST_F(NoDX, LosesTheDigitsThatTheOtherViewsLose) {
  put({"v 0.0 0.5 0", "v 10.25 0.75 0", "f 1 2"});
  form.released.raise({front::MouseButton::right});
  EXPECT_EQ(dots(form.PictureNoDX), (std::vector<Dot>{{450, 150, kBlue}}));
}

TEST_F(NoDX, HoldsNoCornerBeyondAllPixels) {
  for (const char* face : {"f 1 2 2", "f 2 1 2"}) {
    put({"v 0.1 1e30 0.3", "v 0.2 0.5 0.3", face});
    EXPECT_EQ(tests::errorNumber([&] { form.released.raise({front::MouseButton::right}); }), 6);
  }
}

TEST_F(NoDX, GivesNewColoursThatAReadFindsAgain) {
  const std::vector<std::string> lines{"v 0.0 0.5 0", "v 0.25 0.75 0", "g hip",
                                       "usemtl skin", "f 1 2",         "f 1 2"};
  put(lines);
  form.OptionColorMaterials.setValue(true);
  form.released.raise({front::MouseButton::right});
  ASSERT_EQ(form.ListMATColors.count(), 1);
  const auto groups = form.ListGroupColors.items();
  const auto materials = form.ListMATColors.items();
  const auto seen = dots(form.PictureNoDX);
  EXPECT_NE(seen.at(0).colour, kBlue);
  view(lines);
  EXPECT_EQ(dots(form.PictureStore), seen);
  EXPECT_EQ(form.ListGroupColors.items(), groups);
  EXPECT_EQ(form.ListMATColors.items(), materials);
}

TEST_F(NoDX, TakesColoursThatAReadHasGiven) {
  form.ListGroupColors.add("g hip*10 20 30");
  form.ListMATColors.add("usemtl skin*1 2 3");
  put({"v 0.0 0.5 0", "v 0.25 0.75 0", "v 0.3 0.75 0", "g hip", "f 1 2", "usemtl skin", "f 1 3"});
  form.OptionColorGroups.setValue(true);
  form.released.raise({front::MouseButton::right});
  EXPECT_EQ(dots(form.PictureNoDX), (std::vector<Dot>{{450, 150, 0x1E140A}, {480, 150, 0x1E140A}}));
  form.OptionColorMaterials.setValue(true);
  form.released.raise({front::MouseButton::right});
  EXPECT_EQ(dots(form.PictureNoDX), (std::vector<Dot>{{450, 150, 0x1E140A}, {480, 150, 0x030201}}))
      << "the colour of the last face is kept for the first";
}

TEST_F(NoDX, EndsAtAnIndexWithoutAVertex) {
  put({"v 0.0 0.5 0", "f 1 2"});
  EXPECT_EQ(tests::errorNumber([&] { form.released.raise({front::MouseButton::right}); }), 9);
  EXPECT_FALSE(workshop.reading);
}

}  // namespace
}  // namespace norvik::obj
