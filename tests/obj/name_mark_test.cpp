#include "obj/name_mark.h"

#include "obj/name_listing.h"
#include "obj/rename_names.h"
#include "workshop/mesh_bench.h"

namespace norvik::obj {

namespace {

class NameMarkTest : public MeshBench {
 protected:
  NameMarkTest() {
    wireNameListing(workshop);
    wireRenaming(workshop);
    wireNameMark(workshop);
    read();
  }

  /// Two squares of a quarter, the head above the neck; the neck is a quarter behind the middle.
  void read() {
    EXPECT_EQ(view({"v 0 0.25 -0.25", "v 0.25 0.25 -0.25", "v 0.25 0.5 -0.25", "v 0 0.5 -0.25",
                    "v 0 0.5 0", "v 0.25 0.5 0", "v 0.25 0.75 0", "v 0 0.75 0", "g neck",
                    "usemtl skin", "f 1 2 3 4", "g head ", "f 5 6 7 8", "usemtl fur", "f 5 6 7 8"}),
              0);
  }
  void point(const std::string& name, bool materials = false) {
    form.markWanted.raise({.materials = materials, .name = name});
  }
  /// A pixel of the mark over a view: front, side or top.
  graphics::Colour marked(std::size_t view, int x, int y) {
    return form.Mark->flat.at(view).pixel({x, y});
  }
  std::string pictures() {
    std::string bytes;
    for (const front::PictureBox* view : form.flatViews()) bytes += view->surface().rgbBytes();
    return bytes;
  }

  static constexpr graphics::Colour kRed = 0x0000FF;
};

// A quarter is 150 pixels, the middle lies at 300 across and a square shows the corners from its
// second on: in front the neck is the triangle 450,450 450,300 300,300.
TEST_F(NameMarkTest, TheFacesOfTheNameAreRedOverEachView) {
  point("neck");
  ASSERT_TRUE(form.Mark);
  EXPECT_EQ(marked(0, 440, 310), kRed);
  EXPECT_EQ(marked(0, 450, 450), kRed);
  EXPECT_EQ(marked(0, 310, 440), graphics::kWhite);
  EXPECT_EQ(marked(0, 440, 290), graphics::kWhite);
  // From the side it is a line a quarter to the left, from above one a quarter further up.
  EXPECT_EQ(marked(1, 150, 400), kRed);
  EXPECT_EQ(marked(1, 151, 400), graphics::kWhite);
  EXPECT_EQ(marked(2, 400, 150), kRed);
  EXPECT_EQ(marked(2, 400, 151), graphics::kWhite);
}

// The 3D view has six units to one of the mesh and the first three corners of a face.
TEST_F(NameMarkTest, ItsTrianglesAreThoseOfTheSpace) {
  point("neck");
  ASSERT_EQ(form.Mark->corners.size(), 3U);
  const auto& last = form.Mark->corners.back();
  EXPECT_EQ(last.x, 1.5F);
  EXPECT_EQ(last.y, 3.0F);
  EXPECT_EQ(last.z, -1.5F);
}

TEST_F(NameMarkTest, ThePicturesOfTheToolsStayAsTheyWere) {
  const std::string before = pictures();
  const auto revision = mesh.display.revision;
  point("neck");
  EXPECT_EQ(pictures(), before);
  EXPECT_EQ(mesh.display.revision, revision);
  EXPECT_EQ(form.ListGrpRen.count(), 0);
}

TEST_F(NameMarkTest, AnotherNameTakesItsPlaceAndTheSameAgainUnmarks) {
  point("neck");
  point("head ");
  EXPECT_EQ(form.Mark->name, "head ");
  EXPECT_EQ(marked(0, 440, 160), kRed);
  EXPECT_EQ(marked(0, 440, 310), graphics::kWhite);
  // The records have no blanks at the end of a name.
  EXPECT_EQ(form.Mark->corners.size(), 6U);
  point("head ");
  EXPECT_FALSE(form.Mark);
}

TEST_F(NameMarkTest, MaterialsAreMarkedToo) {
  point("skin", true);
  EXPECT_EQ(form.Mark->corners.size(), 6U);
  point("fur", true);
  EXPECT_EQ(form.Mark->corners.size(), 3U);
  EXPECT_TRUE(form.Mark->materials);
}

TEST_F(NameMarkTest, ARenamedGroupIsMarkedUnderEitherName) {
  form.ListGroups.choose(0);
  form.TextGrpRename.setText("throat");
  form.TextGrpRename.key.raise("Enter");
  point("throat");
  EXPECT_EQ(form.Mark->corners.size(), 3U);
  // As in a listing that was there before the rename.
  point("neck");
  EXPECT_EQ(form.Mark->corners.size(), 3U);
}

TEST_F(NameMarkTest, TheMarkGoesWithTheMesh) {
  point("neck");
  EXPECT_EQ(view(), 0);
  EXPECT_FALSE(form.Mark);
  point("neck");
  frontEnd.answers().queueDialog({});
  form.PictureNewFile.released.raise({});
  EXPECT_FALSE(form.Mark);
  point("neck");
  session.unload(form);
  EXPECT_FALSE(form.Mark);
}

TEST_F(NameMarkTest, NothingIsMarkedWhileAMeshIsReadOrWithoutRecords) {
  workshop.reading = true;
  point("neck");
  workshop.reading = false;
  EXPECT_FALSE(form.Mark);
  drive.disk.remove("C:\\Norvik\\FArray.txt");
  point("neck");
  EXPECT_TRUE(form.Mark->corners.empty());
}

}  // namespace

}  // namespace norvik::obj
