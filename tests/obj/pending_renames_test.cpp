#include "obj/pending_renames.h"

#include "obj/rename_names.h"
#include "workshop/mesh_bench.h"

namespace norvik::obj {

namespace {

using Names = std::vector<std::string>;

class PendingRenamesTest : public MeshBench {
 protected:
  PendingRenamesTest() {
    wireRenaming(workshop);
    EXPECT_EQ(view({"v 0 0 0", "v 0 1 0", "v 1 1 0", "g neck", "usemtl skin", "f 1 2 3", "g head",
                    "f 1 2 3", "g tail", "usemtl hair", "f 1 2 3"}),
              0);
  }

  /// As an operator does it; an empty name drops the group.
  void rename(const std::string& from, const std::string& to) {
    const Names& names = form.ListGroups.items();
    const auto found = std::find(names.begin(), names.end(), from);
    ASSERT_NE(found, names.end()) << from;
    form.ListGroups.choose(static_cast<int>(found - names.begin()));
    form.ListGroups.clicked.raise();
    form.TextGrpRename.setText(to);
    form.TextGrpRename.key.raise("Enter");
  }
  Names takeBack(int index, bool materials = false) {
    front::RenameBack back{.materials = materials, .index = index};
    form.renameTakenBack.raise(back);
    return back.also;
  }
  const Names& names() const { return form.ListGroups.items(); }
  const Names& pending() const { return form.ListGrpRen.items(); }
};

TEST_F(PendingRenamesTest, AnEntryIsReadAsWhatItDoes) {
  EXPECT_EQ(renameInWords("neck*throat"), "neck -> throat");
  EXPECT_EQ(renameInWords("tail* NULL"), "tail (drop)");
  // The letters drop a group wherever they stand.
  EXPECT_EQ(renameInWords("tail*NULLIFY"), "tail -> NULLIFY (drop)");
}

TEST_F(PendingRenamesTest, OneTakenBackLeavesTheOthers) {
  rename("neck", "throat");
  rename("head", "skull");
  EXPECT_EQ(takeBack(0), Names{});
  EXPECT_EQ(names(), (Names{"neck", "skull", "tail"}));
  EXPECT_EQ(pending(), Names{"head*skull"});
  EXPECT_TRUE(form.RenamesPending);
  EXPECT_EQ(takeBack(0), Names{});
  EXPECT_EQ(names(), (Names{"neck", "head", "tail"}));
  EXPECT_FALSE(form.RenamesPending);
}

TEST_F(PendingRenamesTest, ADroppedNameComesBackInItsPlace) {
  rename("neck", "");
  rename("head", "skull");
  EXPECT_EQ(names(), (Names{"skull", "tail"}));
  EXPECT_EQ(takeBack(0), Names{});
  EXPECT_EQ(names(), (Names{"neck", "skull", "tail"}));
}

TEST_F(PendingRenamesTest, WhatRestedOnTheOneTakenBackGoesWithIt) {
  rename("neck", "throat");
  rename("throat", "gorge");
  rename("gorge", "");
  rename("head", "skull");
  EXPECT_EQ(takeBack(0), (Names{"throat*gorge", "gorge* NULL"}));
  EXPECT_EQ(names(), (Names{"neck", "skull", "tail"}));
  EXPECT_EQ(pending(), Names{"head*skull"});
}

TEST_F(PendingRenamesTest, TheEndOfAChainGoesAlone) {
  rename("neck", "throat");
  rename("throat", "gorge");
  EXPECT_EQ(takeBack(1), Names{});
  EXPECT_EQ(names(), (Names{"throat", "head", "tail"}));
  EXPECT_EQ(pending(), Names{"neck*throat"});
}

TEST_F(PendingRenamesTest, ALaterEntryThatStillMeetsANameStays) {
  rename("neck", "body");
  rename("head", "body");
  rename("body", "torso");
  EXPECT_EQ(takeBack(0), Names{});
  EXPECT_EQ(names(), (Names{"neck", "torso", "tail"}));
  EXPECT_EQ(pending(), (Names{"head*body", "body*torso"}));
}

TEST_F(PendingRenamesTest, OneThatNeverMetAnyNameStaysToo) {
  rename("neck", "throat");
  form.ListGrpRen.add("nobody*somebody");
  EXPECT_EQ(takeBack(0), Names{});
  EXPECT_EQ(pending(), Names{"nobody*somebody"});
}

TEST_F(PendingRenamesTest, BehindAnotherViewTheNamesAreTheFilesOwn) {
  rename("neck", "throat");
  rename("head", "skull");
  EXPECT_EQ(view(), 0);
  EXPECT_EQ(names(), (Names{"neck", "head", "tail"}));
  EXPECT_EQ(takeBack(1), Names{});
  EXPECT_EQ(names(), (Names{"throat", "head", "tail"}));
}

TEST_F(PendingRenamesTest, MaterialsHaveTheirOwn) {
  rename("neck", "throat");
  form.ListMaterials.choose(1);
  form.TextMatRename.setText("fur");
  form.TextMatRename.key.raise("Enter");
  EXPECT_EQ(form.ListMaterials.items(), (Names{"skin", "fur"}));
  EXPECT_EQ(takeBack(0, true), Names{});
  EXPECT_EQ(form.ListMaterials.items(), (Names{"skin", "hair"}));
  EXPECT_EQ(pending(), Names{"neck*throat"});
  EXPECT_TRUE(form.RenamesPending);
}

TEST_F(PendingRenamesTest, NothingIsTakenBackThatIsNotThereOrWhileTheNamesAreRead) {
  rename("neck", "throat");
  EXPECT_EQ(takeBack(1), Names{});
  EXPECT_EQ(takeBack(-1), Names{});
  workshop.reading = true;
  EXPECT_EQ(takeBack(0), Names{});
  workshop.reading = false;
  EXPECT_EQ(pending(), Names{"neck*throat"});
  EXPECT_EQ(names(), (Names{"throat", "head", "tail"}));
}

}  // namespace

}  // namespace norvik::obj
