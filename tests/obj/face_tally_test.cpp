#include "obj/face_tally.h"

#include "obj/rename_names.h"
#include "workshop/mesh_bench.h"

namespace norvik::obj {

namespace {

class FaceTallyTest : public MeshBench {
 protected:
  FaceTallyTest() {
    wireRenaming(workshop);
    EXPECT_EQ(view({"v 0 0 0", "v 0 1 0", "v 1 1 0", "f 1 2 3", "g neck", "usemtl skin", "f 1 2 3",
                    "f 1 2 3", "g head ", "f 1 2 3", "g neck", "f 1 2 3"}),
              0);
  }
  std::uint64_t faces(const std::string& name) {
    return facesOf(facesOnShow(session, groupSide(form)), name);
  }
  void rename(int index, const std::string& to) {
    form.ListGroups.choose(index);
    form.TextGrpRename.setText(to);
    form.TextGrpRename.key.raise("Enter");
  }
};

TEST_F(FaceTallyTest, EachNameHasItsFaces) {
  EXPECT_EQ(faces("neck"), 3U);
  EXPECT_EQ(faces("head "), 1U);
  EXPECT_EQ(faces("tail"), 0U);
  EXPECT_EQ(facesOf(facesOnShow(session, materialSide(form)), "skin"), 4U);
}

TEST_F(FaceTallyTest, RenamedOnesHaveThemUnderTheNewName) {
  rename(0, "throat");
  EXPECT_EQ(faces("throat"), 3U);
  EXPECT_EQ(faces("neck"), 0U);
  EXPECT_EQ(faces("head "), 1U);
  // Behind another View the names are those of the file.
  EXPECT_EQ(view(), 0);
  EXPECT_EQ(faces("neck"), 3U);
}

}  // namespace

}  // namespace norvik::obj
