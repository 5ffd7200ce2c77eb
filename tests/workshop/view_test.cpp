// The read of a mesh: what it stores and what it keeps.

#include "workshop/mesh_bench.h"

#include <limits>

namespace norvik::obj {
namespace {

using Names = std::vector<std::string>;
using View = MeshBench;

constexpr int kOverflow = 6;
constexpr int kSubscript = 9;

TEST_F(View, StoresEveryLineThatCountsInFileOrder) {
  EXPECT_EQ(view({"# a mesh", "mtllib a.mtl", "o thing", "v 0.5 1.0 0.25", "v -0.5 0.0 0.25",
                  "v 0.0 0.5 -0.25", "vn 0 0 1", "vt 0.5 0.25", "vt 0.125 -1 0.5", "g hip",
                  "usemtl skin", "s 1", "f 1/1 2/2 3/1", "g chest", "f 3 2 1"}),
            0);
  EXPECT_EQ(faces(), (Names{"g hip", "usemtl skin", "f 1/1 2/2 3/1", "g chest", "f 3 2 1"}));
  EXPECT_EQ(vertices(), (Names{"v 0.5 1.0 0.25", "v -0.5 0.0 0.25", "v 0.0 0.5 -0.25"}));
  EXPECT_EQ(texturePoints(), (Names{" .5* .25", " .125*-1"}));
  EXPECT_EQ(mesh.FaceCount, 2);
  EXPECT_EQ(mesh.RecordExtra, 3);
  EXPECT_EQ(mesh.TexCount, 2);
  EXPECT_TRUE(mesh.HasUV);
  EXPECT_EQ(mesh.vertices,
            (std::vector<Position>{{.5F, 1, .25F}, {-.5F, 0, .25F}, {0, .5F, -.25F}}));
}

TEST_F(View, FillsRecordsWithBlanksAndCutsLongOnes) {
  const std::string digits(60, '1');
  view({"v 0.5 1." + digits + " 0", "f 1"});
  const std::string bytes = drive.folder.read("Norvik/VArray.txt");
  EXPECT_EQ(bytes, "v 0.5 1." + digits.substr(0, 42));
  EXPECT_EQ(drive.folder.read("Norvik/FArray.txt"), "f 1" + std::string(497, ' '));
}

TEST_F(View, KeepsTheWholeLineInTheRecordWhereTheVertexLosesADigit) {
  view({"v 12.5 0.2 0", "v -.512 0.1 0.2"});
  EXPECT_EQ(vertices(), (Names{"v 12.5 0.2 0", "v -.512 0.1 0.2"}));
  EXPECT_EQ(mesh.vertices, (std::vector<Position>{{2.5F, .2F, 0}, {-.12F, .1F, .2F}}));
}

TEST_F(View, StoresLinesAsTheyAreAfterNormalising) {
  view({"v  1.0 2.0 3.0", " v 1.0 2.0 3.0", "v\t1.0 2.0 3.0", " g hip ", "fo 1 2 3", "f\t1 2 3"});
  EXPECT_EQ(vertices(), (Names{"v 1.0 2.0 3.0", "v 1.0 2.0 3.0", "v 1.0 2.0 3.0"}));
  EXPECT_EQ(faces(), (Names{"g hip", "f 1 2 3", "f 1 2 3"}));
  EXPECT_EQ(form.ListGroups.items(), (Names{"hip "}));
}

TEST_F(View, TakesTextureTextsBetweenTheirBlanks) {
  view({"v 0.0 1 0", "vt  0.5 0.25", "vt\t1 2", "vt 1e-5 12345678", "vt 0.5", "vt", "vt -.5 -0 7",
        "f 1", "f 1"});
  EXPECT_EQ(texturePoints(),
            (Names{" .5* .25", " 1* 2", " 1E-05* 1.234568E+07", " .5* 0", " 0* 0", "-.5* 0"}));
  EXPECT_EQ(mesh.TexCount, 6);
}

TEST_F(View, ListsDistinctNames) {
  view({"v 0.0 1 0", "g hip", "g", "g Hip", "g hip", "usemtl skin", "usemap foo", "usemtl skin",
        "use x", "f 1"});
  EXPECT_EQ(form.ListGroups.items(), (Names{"hip", "", "Hip"}));
  EXPECT_EQ(form.ListMaterials.items(), (Names{"skin", "foo", ""}));
  EXPECT_EQ(form.ListGroupColors.count(), 3);
  EXPECT_EQ(form.ListMATColors.count(), 3);
  EXPECT_EQ(faces().size(), 9U);
  EXPECT_EQ(mesh.RecordExtra, 8);
}

TEST_F(View, KeepsColoursThroughAReloadAndNames) {
  view({"v 0.0 1 0", "g hip", "g chest", "f 1"});
  const Names colours = form.ListGroupColors.items();
  view({"v 0.0 1 0", "g chest", "g neck", "f 1"});
  EXPECT_EQ(form.ListGroups.items(), (Names{"chest", "neck"}));
  ASSERT_EQ(form.ListGroupColors.count(), 3);
  EXPECT_EQ(Names(form.ListGroupColors.items().begin(), form.ListGroupColors.items().begin() + 2),
            colours);
}

TEST_F(View, DrawsTheSameColoursEachTimeTheFormIsLoaded) {
  view({"v 0.0 1 0", "g hip", "usemtl skin", "f 1"});
  const Names groups = form.ListGroupColors.items();
  const Names materials = form.ListMATColors.items();
  session.unload(form);
  session.load(form);
  EXPECT_EQ(form.ListGroupColors.count(), 0);
  view();
  EXPECT_EQ(form.ListGroupColors.items(), groups);
  EXPECT_EQ(form.ListMATColors.items(), materials);
  EXPECT_NE(groups[0].substr(groups[0].find('*')), materials[0].substr(materials[0].find('*')));
}

TEST_F(View, KeepsBoundsFromNothing) {
  view({"v 0.75 0.5 9", "v -0.25 -3 -9", "v 0.5 0.25 0", "f 1", "f 1"});
  EXPECT_EQ(mesh.BiggestX, .75F);
  EXPECT_EQ(mesh.SmallestX, -.25F);
  EXPECT_EQ(mesh.BiggestY, .5F);
  // 600 pixels to the unit: 450 and half the picture, 150, 300.
  EXPECT_EQ(form.LabelBiggestX.caption(), "750");
  EXPECT_EQ(form.LabelSmallestX.caption(), "150");
  EXPECT_EQ(form.LabelBiggestY.caption(), "300");
}

TEST_F(View, OfBoundsThatNoExtentHoldsIsAnOverflow) {
  EXPECT_EQ(view({"v 0.1 3e38 0.3", "v 0.1 0.5 0", "f 2", "f 2"}), 6);
  EXPECT_EQ(view({"v 03e38 0.5 0.3", "v 0.1 0.5 0", "f 2", "f 2"}), 6);
  EXPECT_EQ(view({"v -3e38 0.5 0.3", "v 0.1 0.5 0", "f 2", "f 2"}), 6);
  EXPECT_EQ(view({"v 0.1 0.5 3e38", "v 0.1 0.5 0", "f 2", "f 2"}), 0);
}

TEST_F(View, ShowsTheToolsAndTheChosenView) {
  form.OptionSideView.setValue(true);
  EXPECT_FALSE(form.CommandListGroups.enabled());
  view({"v 0.0 1 0", "f 1", "f 1"});
  for (const front::Control* control : std::initializer_list<front::Control*>{
           &form.LabelMirror, &form.LabelMakeUV, &form.LabelUVMap, &form.LabelViewCR2TexMap,
           &form.LabelApplyMap, &form.TextNotes, &form.PictureLop, &form.PicturePhiLopper,
           &form.CommandListGroups, &form.CommandListMats, &form.PictureStore2}) {
    EXPECT_TRUE(control->visible() && control->enabled()) << control->name();
  }
  for (const front::Control* control : std::initializer_list<front::Control*>{
           &form.PictureStore, &form.PictureStore3, &form.PictureObjViewer2, &form.PictureNoDX,
           &form.PictureOBJViewer}) {
    EXPECT_FALSE(control->visible()) << control->name();
  }
}

TEST_F(View, TakesUpAnotherViewWhenItIsChosen) {
  view({"v 0.0 1 0", "f 1", "f 1"});
  EXPECT_TRUE(form.PictureStore.visible());
  form.OptionTopView.setValue(true);
  form.OptionTopView.clicked.raise();
  EXPECT_FALSE(form.PictureStore.visible());
  EXPECT_TRUE(form.PictureStore3.visible());
  EXPECT_EQ(workshop.viewMode, ViewMode::top);
}

TEST_F(View, TakesTheTurnedBodysPlaceWhenItStandsStill) {
  view({"v 0.0 1 0", "f 1", "f 1"});
  form.key.raise("Space");  // nothing turned yet
  EXPECT_FALSE(form.PictureStore.visible());
  form.PictureObjViewer2.show();
  form.OptionSideView.setValue(true);
  form.OptionSideView.clicked.raise();
  EXPECT_FALSE(form.PictureObjViewer2.visible());
  EXPECT_TRUE(form.PictureStore2.visible());
}

TEST_F(View, OfAnIndexThatNoVertexHasEndsThere) {
  for (const char* face : {"f 1 2 4", "f 1 0 2", "f 1 -1 2", "f 1  2 3", "f 99999999999 1 2",
                           "f 1 1e30 2", "f 1 nan 2"}) {
    EXPECT_EQ(view({"v 0.0 1 0", "v 0.1 1 0", "v 0.2 1 0", "g hip", "f 1 2 3", "g chest", face,
                    "g neck", "v 0.3 1 0", "f 1 2 3"}),
              kSubscript)
        << face;
    // As far as it was built.
    EXPECT_EQ(faces(), (Names{"g hip", "f 1 2 3", "g chest", face})) << face;
    EXPECT_EQ(vertices().size(), 3U);
    EXPECT_EQ(mesh.vertices.size(), 3U);
    EXPECT_EQ(mesh.FaceCount, 2);
    EXPECT_EQ(form.ListGroups.items(), (Names{"hip", "chest"}));
    EXPECT_FALSE(form.LabelUVMap.visible());
    EXPECT_FALSE(workshop.reading);
  }
  EXPECT_EQ(view({"v 0.0 1 0", "v 0.1 1 0", "v 0.2 1 0", "f 1 2 3", "f 1 2 3"}), 0);
}

TEST_F(View, OfFacesBeforeTheirVerticesEndsThere) {
  EXPECT_EQ(view({"f 1 2 3", "v 0.0 1 0", "v 0.1 1 0", "v 0.2 1 0"}), kSubscript);
  EXPECT_EQ(faces(), (Names{"f 1 2 3"}));
  EXPECT_EQ(vertices(), (Names{}));
}

TEST_F(View, OfNumbersBeyondSinglePrecisionIsAnOverflow) {
  EXPECT_EQ(view({"v 0.0 1 0", "v 0.0 1e40 0", "f 1"}), kOverflow);
  EXPECT_EQ(vertices(), (Names{"v 0.0 1 0", "v 0.0 1e40 0"}));
  EXPECT_EQ(mesh.vertices.size(), 1U);
  EXPECT_EQ(view({"v 0.0 1 0", "vt 1e99 0", "f 1"}), kOverflow);
  EXPECT_EQ(texturePoints(), (Names{}));
}

TEST_F(View, OfPlacesBeyondAnyPixelIsAnOverflow) {
  EXPECT_EQ(view({"v 0.0 1 0", "v 0.0 3e9 0", "v 0.5 1 0", "f 1 2 3", "f 1 3 3"}), kOverflow);
  EXPECT_EQ(faces().size(), 1U);
  // A first corner does not reach the picture, but has a place until the second one takes it.
  EXPECT_EQ(view({"v 0.0 1 0", "v 0.0 3e9 0", "v 0.5 1 0", "f 2 1 3", "f 1 3 3"}), kOverflow);
}

TEST_F(View, OfALongFaceBeepsAndKeeps500Characters) {
  std::string line = "f 1";
  while (line.size() < 500) line += "/1";
  line.resize(500);
  view({"v 0.0 1 0", line, line});
  EXPECT_EQ(takeEvents().find("beep"), std::string::npos);
  view({"v 0.0 1 0", line + "2", line});
  EXPECT_NE(takeEvents().find(R"({"event":"beep"})"), std::string::npos);
  EXPECT_EQ(faces(), (Names{line, line}));
}

TEST_F(View, TakesALineOfTenMegabytes) {
  const std::string tokens(10'000'000, '1');
  EXPECT_EQ(view({"v 0.0 1 0", "# " + tokens, "g " + tokens, "v 0.0 1 " + tokens, "f 1", "f 1"}),
            kOverflow);
  EXPECT_EQ(form.ListGroups.item(0).size(), tokens.size());
  EXPECT_EQ(vertices()[1].size(), 50U);
}

TEST_F(View, TakesBytesThatAreNoText) {
  std::string bytes;
  for (int i = 0; i < 4096; ++i) bytes += static_cast<char>(i * 7 % 256);
  putText("v 0.0 1 0\r\n" + bytes + "\r\nf 1\r\nf 1\r\n");
  EXPECT_EQ(view(), 0);
  EXPECT_EQ(vertices().front(), "v 0.0 1 0");
}

TEST_F(View, OfAMissingFileIsItsError) {
  opening.LabelOBJFileName.setCaption("C:\\none.obj");
  EXPECT_EQ(view(), 53);
  opening.LabelOBJFileName.setCaption("C:\\none\\none.obj");
  EXPECT_EQ(view(), 76);
  opening.LabelOBJFileName.setCaption("\\\\server\\share\\a.obj");
  EXPECT_EQ(view(), 76);
  drive.disk.makeFolder("C:\\folder.obj");
  opening.LabelOBJFileName.setCaption("C:\\folder.obj");
  EXPECT_EQ(view(), 75);
  EXPECT_FALSE(form.CommandListGroups.enabled());
}

TEST_F(View, ServicesEventsAndEndsWhenTheFormIsLeftMeanwhile) {
  put({"v 0.0 1 0", "g hip", "f 1", "g chest", "f 1"});
  frontEnd.meanwhile = [&] { session.unload(form); };
  EXPECT_EQ(view(), 0);
  EXPECT_FALSE(form.loaded());
  EXPECT_TRUE(mesh.vertices.empty());
  EXPECT_EQ(faces(), (Names{"g hip", "f 1"}));
  EXPECT_EQ(takeEvents().find("\"box\""), std::string::npos);
}

TEST_F(View, IsNotBegunASecondTimeWhileItRuns) {
  put({"v 0.0 1 0", "g hip", "f 1", "g chest", "f 1"});
  frontEnd.meanwhile = [&] {
    form.LabelView.clicked.raise();
    form.key.raise("r");
    form.PictureNewFile.released.raise({});
    form.released.raise({front::MouseButton::right});
  };
  EXPECT_EQ(view(), 0);
  EXPECT_EQ(faces(), (Names{"g hip", "f 1", "g chest", "f 1"}));
  EXPECT_EQ(mesh.FaceCount, 2);
}

TEST_F(View, RepairsLineEndingsUnlessAToolHasStartedIt) {
  putText("v 0.0 1 0\nf 1\nf 1\n");
  form.ReadAgain = true;
  EXPECT_EQ(view(), 0);
  EXPECT_FALSE(form.ReadAgain);
  EXPECT_EQ(takeEvents().find("unconventional"), std::string::npos);
  frontEnd.answers().queueBox(front::Answer::ok);
  EXPECT_EQ(view(), 0);
  EXPECT_EQ(drive.folder.read("a.obj"), "v 0.0 1 0\r\nf 1\r\nf 1\r\n");
}

}  // namespace
}  // namespace norvik::obj
