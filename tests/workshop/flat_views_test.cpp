// Pixels of small meshes, worked out by hand: a unit is 600 pixels, x = 0 and z = 0 are the middle,
// y = 0 is the bottom.

#include "workshop/mesh_bench.h"

namespace norvik::obj {
namespace {

using FlatViews = MeshBench;

constexpr graphics::Colour kBlue = 0x800000;  // of the console

TEST_F(FlatViews, ShowAQuadAsTheTriangleOfItsLastThreeCorners) {
  view({"v 0.0 0.1 0.0", "v 0.1 0.1 0.05", "v 0.1 0.2 0.05", "v 0.0 0.2 0.05", "f 1 2 3 4", "f 1"});
  // (360,540), (360,480), (300,480): from the row of 61 pixels at the top down to one.
  std::vector<Dot> triangle;
  for (int y = 480; y <= 540; ++y) {
    for (int x = 300 + (y - 480); x <= 360; ++x) triangle.push_back({x, y, kBlue});
  }
  EXPECT_EQ(dots(form.PictureStore), triangle);
  // From the side z = 0.05 is 330: a line. From the top y = 300 + 30.
  std::vector<Dot> side;
  for (int y = 480; y <= 540; ++y) side.push_back({330, y, kBlue});
  EXPECT_EQ(dots(form.PictureStore2), side);
  std::vector<Dot> top;
  for (int x = 300; x <= 360; ++x) top.push_back({x, 330, kBlue});
  EXPECT_EQ(dots(form.PictureStore3), top);
}

TEST_F(FlatViews, ShowATriangleAsTheLineOfItsLastTwoCorners) {
  view({"v 0.4 0.9 0", "v -0.1 0.5 -0.1", "v -0.1 0.45 -0.1", "f 1 2 3", "f 1"});
  std::vector<Dot> line;
  for (int y = 300; y <= 330; ++y) line.push_back({240, y, kBlue});
  EXPECT_EQ(dots(form.PictureStore), line);
  EXPECT_EQ(dots(form.PictureStore2), line);
  EXPECT_EQ(dots(form.PictureStore3), (std::vector<Dot>{{240, 240, kBlue}}));
}

TEST_F(FlatViews, ShowTheSecondOfTwoCornersAsADotAndASingleOneNot) {
  view({"v 0.0 0.5 0", "v 0.25 0.75 0", "f 1 2", "f 1"});
  EXPECT_EQ(dots(form.PictureStore), (std::vector<Dot>{{450, 150, kBlue}}));
}

TEST_F(FlatViews, ClipWhatLiesOutside) {
  view({"v 0.0 0.5 0", "v 0.4 0.5 0", "v 0.9 0.5 0", "f 1 2 3", "f 1"});
  const auto found = dots(form.PictureStore);
  ASSERT_EQ(found.size(), 60U);
  EXPECT_EQ(found.front(), (Dot{540, 300, kBlue}));
  EXPECT_EQ(found.back(), (Dot{599, 300, kBlue}));
}

TEST_F(FlatViews, RoundHalvesToTheEvenPixel) {
  // x = 0.0625 is 337.5, x = 0.1875 is 412.5; y = 0.9375 is 37.5.
  view({"v 0.0 0.5 0", "v 0.0625 0.9375 0", "v 0.1875 0.9375 0", "f 1 2", "f 1 3"});
  EXPECT_EQ(dots(form.PictureStore), (std::vector<Dot>{{338, 38, kBlue}, {412, 38, kBlue}}));
}

TEST_F(FlatViews, TakeTheColoursOfGroups) {
  form.ListGroupColors.add("g hip*10 20 30");
  form.OptionColorGroups.setValue(true);
  view({"v 0.0 0.5 0", "v 0.25 0.75 0", "v 0.3 0.75 0", "f 1 2", "g hip", "usemtl skin", "f 1 3"});
  EXPECT_EQ(dots(form.PictureStore),
            (std::vector<Dot>{{450, 150, graphics::kBlack}, {480, 150, 0x1E140A}}));
  EXPECT_EQ(workshop.spin.diffuse, (Diffuse{10 / 255.0F, 20 / 255.0F, 30 / 255.0F}));
}

TEST_F(FlatViews, TakeTheColoursOfMaterials) {
  form.ListMATColors.add("usemtl skin*10 20 30");
  form.OptionColorMaterials.setValue(true);
  view({"v 0.0 0.5 0", "v 0.25 0.75 0", "usemtl skin", "g hip", "f 1 2", "f 1"});
  EXPECT_EQ(dots(form.PictureStore), (std::vector<Dot>{{450, 150, 0x1E140A}}));
  EXPECT_EQ(form.ListGroupColors.count(), 1);
}

TEST_F(FlatViews, AreDrawnOverWhatIsThereUntilAReset) {
  view({"v 0.0 0.5 0", "v 0.25 0.75 0", "f 1 2", "f 1"});
  view({"v 0.0 0.5 0", "v 0.25 0.5 0", "f 1 2", "f 1"});
  EXPECT_EQ(dots(form.PictureStore).size(), 2U);
  frontEnd.answers().queueDialog({});
  Reset(workshop);
  EXPECT_EQ(dots(form.PictureStore).size(), 0U);
}

TEST_F(FlatViews, ShowNothingBeforeTheEndWhileTheyAreSuppressed) {
  put({"v 0.0 0.5 0", "v 0.25 0.75 0", "f 1 2", "f 1"});
  const auto shownMeanwhile = [&] {
    bool shown = false;
    frontEnd.meanwhile = [&] {
      for (const front::Control* control : form.takeChanges()) {
        shown = shown || control == &form.PictureStore;
      }
    };
    view();
    return shown;
  };
  form.PictureStore.show();
  static_cast<void>(form.takeChanges());
  EXPECT_TRUE(shownMeanwhile());
  workshop.Suppress = true;
  static_cast<void>(form.takeChanges());
  EXPECT_FALSE(shownMeanwhile());
}

TEST_F(FlatViews, HaveTheSizeOfTheScreen) {
  EXPECT_EQ(form.PictureStore.surface().width(), 600);
  EXPECT_EQ(form.PictureUVMap.surface().width(), 580);
}

TEST_F(FlatViews, PutTheFirstThreeCornersIntoTheDisplayList) {
  view({"v 0.1 0.5 0.25", "v 0.25 0.75 0", "v 0.0 1 -0.5", "v 0.5 0.5 0.5", "f 4 3 2 1", "f 1"});
  const auto& list = mesh.display.vertices;
  ASSERT_EQ(list.size(), 4U);
  // Six view units to one of the mesh.
  EXPECT_EQ(list[0].x, 3);
  EXPECT_EQ(list[0].y, 3);
  EXPECT_EQ(list[0].z, 3);
  EXPECT_EQ(list[1].y, 6);
  EXPECT_EQ(list[1].z, -3);
  EXPECT_EQ(list[2].x, 1.5F);
  EXPECT_EQ(list[2].y, 4.5F);
  EXPECT_EQ(list[3].y, 3);  // the face of one corner
}

TEST_F(FlatViews, AreDrawnAgainByRefresh) {
  form.OptionColorGroups.setValue(true);
  view({"v 0.0 0.5 0", "v 0.25 0.75 0", "v 0.3 0.5 0", "vt 0 0", "g hip", "f 1 2 3", "f 1"});
  const auto before = dots(form.PictureStore);
  const auto stored = drive.folder.read("Norvik/FArray.txt");
  const auto revision = mesh.display.revision;
  form.PictureStore.clear();
  form.PictureStore.hide();
  put({"v 0.0 0.5 0", "v 0.25 0.75 0", "v 0.3 0.5 0", "vt 0 0", "g hip", "f 1 2 3", "f 1", "g new",
       "usemtl new"});
  form.key.raise("r");
  EXPECT_EQ(dots(form.PictureStore), before);
  EXPECT_FALSE(form.PictureStore.visible()) << "what is on show stays";
  EXPECT_EQ(drive.folder.read("Norvik/FArray.txt"), stored);
  EXPECT_EQ(form.ListGroups.count(), 1);
  EXPECT_EQ(form.ListGroupColors.count(), 1);
  EXPECT_EQ(form.ListMaterials.count(), 0);
  EXPECT_EQ(mesh.TexCount, 1);
  EXPECT_EQ(mesh.RecordExtra, 1);
  EXPECT_EQ(mesh.FaceCount, 4);
  EXPECT_EQ(mesh.vertices.size(), 3U);
  EXPECT_EQ(mesh.display.vertices.size(), 4U);
  EXPECT_EQ(mesh.display.DisplayCount, 8U);
  EXPECT_GT(mesh.display.revision, revision);
}

TEST_F(FlatViews, HoldNoCornerBeyondAllPixels) {
  for (const char* far : {"v 0.1 1e30 0.3", "v .1e30 0.1 0.3", "v 0.1 0.1 -1e30"}) {
    for (const char* face : {"f 1 2 2", "f 2 1 2", "f 2 2 2 1", "f 1"}) {
      EXPECT_EQ(view({far, "v 0.2 0.5 0.3", face}), 6) << far << ", " << face;
    }
    EXPECT_EQ(view({far, "v 0.2 0.5 0.3", "f 2 2 2", "f 2 2 2"}), 0) << far;
  }
}

TEST_F(FlatViews, OfAMissingFileAreNotDrawnAgain) {
  opening.LabelOBJFileName.setCaption("C:\\none.obj");
  EXPECT_EQ(tests::errorNumber([&] { form.key.raise("r"); }), 53);
  EXPECT_FALSE(workshop.reading);
}

}  // namespace
}  // namespace norvik::obj
