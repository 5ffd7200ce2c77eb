// What the main form does by itself: menus that tidy up as they open, the size of the screen, the
// recent files.

#include "front/recent_files.h"
#include "front/screen_scale.h"
#include "headless/script_bench.h"

#include <gtest/gtest.h>

namespace norvik::front {
namespace {

using headless::Lines;
using headless::ScriptBench;

class MainForm : public ::testing::Test {
 protected:
  MainForm() {
    bench.start();
    opening.MenuCR2Tools.setEnabled(true);
    for (Control* control : popUps()) control->show();
  }

  std::vector<Control*> popUps() {
    return {&opening.ListMRU,         &opening.FrameMash,     &opening.OptionMashOBJ,
            &opening.OptionMashMorph, &opening.PictureMirror, &opening.ListAllTexMaps,
            &opening.FrameDialHiding};
  }
  Lines visiblePopUps() {
    Lines names;
    for (const Control* control : popUps()) {
      if (control->visible()) names.push_back(control->name());
    }
    return names;
  }

  ScriptBench bench;
  Opening& opening = bench.opening();
};

TEST_F(MainForm, TheFileMenuHidesWhatPoppedUp) {
  bench.play("click menuFile\n");
  EXPECT_EQ(visiblePopUps(), Lines{});
}

TEST_F(MainForm, TheToolsMenuLeavesTheTwoLists) {
  bench.play("click MenuCR2Tools\n");
  EXPECT_EQ(visiblePopUps(), (Lines{"ListMRU", "ListAllTexMaps"}));
}

TEST_F(MainForm, AnEntryDeepInTheToolsMenuOpensItToo) {
  bench.play("click MenuP3Male\n");
  EXPECT_EQ(visiblePopUps(), (Lines{"ListMRU", "ListAllTexMaps"}));
}

TEST_F(MainForm, OtherMenusLeaveAllAsItIs) {
  bench.play("click MenuNotes\nclick MenuSpace\n");
  EXPECT_EQ(visiblePopUps().size(), popUps().size());
}

TEST_F(MainForm, TheRecentEntryShowsTheListBehindTheMenu) {
  bench.play("click menuRecent\n");
  EXPECT_EQ(visiblePopUps(), (Lines{"ListMRU"}));
}

TEST_F(MainForm, TheFileMenuReadsTheLocationOfPoser) {
  bench.settings.set("Startup", "PLoc", "D:\\Other\\");
  EXPECT_EQ(opening.PoserLocation, "C:\\Poser\\");
  bench.play("click menuFile\n");
  EXPECT_EQ(opening.PoserLocation, "D:\\Other\\");
}

TEST_F(MainForm, ADragBeginsOnlyWhileTheTrashIsArmed) {
  int drops = 0;
  opening.PictureTrash.dropped.add([&](Control& from) {
    EXPECT_EQ(&from, &opening.ListActors);
    ++drops;
  });
  opening.ListActors.add("    hip:1 * 7");
  // The first part is never removed, so that the trash does nothing with it.
  opening.ListActors.choose(0);
  opening.ListActors.show();
  opening.PictureTrash.show();
  bench.play("drop ListActors PictureTrash\n");
  EXPECT_EQ(drops, 0);
  opening.PictureTrash.activate();
  bench.play("drop ListActors PictureTrash\n");
  EXPECT_EQ(drops, 1);
  opening.PictureTrash.rest();
  bench.play("drop ListActors PictureTrash\n");
  EXPECT_EQ(drops, 1);
}

class FullScreen : public ::testing::Test {
 protected:
  FullScreen() { bench.start(); }

  ScriptBench bench;  // its screen has 1600 x 1160 pixels, 24000 x 17400 twips
  Opening& opening = bench.opening();
};

TEST_F(FullScreen, RatiosAreZeroBefore) {
  EXPECT_EQ(opening.ScreenScaleX, 0);
  EXPECT_EQ(opening.ScreenScaleY, 0);
}

TEST_F(FullScreen, MultipliesPlacesSizesAndFonts) {
  opening.setBox({300, 200, 6000, 4350});
  opening.setFontSize(8);
  opening.ListActors.setBox({10, 20, 30, 40});
  opening.ListActors.setFontSize(10);
  opening.LabelOBJFileName.setBox({1, 2, 3, 4});
  ResizeFormToScreen(bench.session(), opening);
  EXPECT_EQ(opening.ScreenScaleX, 4);
  EXPECT_EQ(opening.ScreenScaleY, 4);
  EXPECT_EQ(opening.box().left, 0);
  EXPECT_EQ(opening.box().top, 0);
  EXPECT_EQ(opening.box().width, 24000);
  EXPECT_EQ(opening.box().height, 17400);
  EXPECT_EQ(opening.fontSize(), 32);
  EXPECT_EQ(opening.ListActors.box().left, 40);
  EXPECT_EQ(opening.ListActors.box().top, 80);
  EXPECT_EQ(opening.ListActors.box().width, 120);
  EXPECT_EQ(opening.ListActors.box().height, 160);
  EXPECT_EQ(opening.ListActors.fontSize(), 40);
  EXPECT_EQ(opening.LabelOBJFileName.box().left, 4) << "hidden controls too";
  EXPECT_EQ(opening.state(), WindowState::maximised);
}

TEST_F(FullScreen, TakesWidthAndHeightApart) {
  opening.setBox({0, 0, 12000, 17400});
  opening.setFontSize(8);
  opening.ListActors.setBox({10, 20, 30, 40});
  opening.ListActors.setFontSize(10);
  ResizeFormToScreen(bench.session(), opening);
  EXPECT_EQ(opening.ScreenScaleX, 2);
  EXPECT_EQ(opening.ScreenScaleY, 1);
  EXPECT_EQ(opening.fontSize(), 16);
  EXPECT_EQ(opening.ListActors.box().left, 20);
  EXPECT_EQ(opening.ListActors.box().top, 20);
  EXPECT_EQ(opening.ListActors.box().width, 60);
  EXPECT_EQ(opening.ListActors.box().height, 40);
  EXPECT_EQ(opening.ListActors.fontSize(), 20);
}

TEST_F(FullScreen, DoesNothingToAMaximisedForm) {
  opening.ListActors.setBox({10, 20, 30, 40});
  opening.setState(WindowState::maximised);
  ResizeFormToScreen(bench.session(), opening);
  EXPECT_EQ(opening.ScreenScaleX, 0);
  EXPECT_EQ(opening.ListActors.box().left, 10);
}

TEST_F(FullScreen, MultipliesAgainAfterTheFormWasMadeNormal) {
  opening.setBox({0, 0, 12000, 8700});
  opening.ListActors.setBox({10, 20, 30, 40});
  ResizeFormToScreen(bench.session(), opening);
  EXPECT_EQ(opening.ScreenScaleX, 2);
  opening.setState(WindowState::normal);
  ResizeFormToScreen(bench.session(), opening);
  EXPECT_EQ(opening.ScreenScaleX, 1) << "the form has the screen's size by now";
  EXPECT_EQ(opening.ListActors.box().left, 20);
  // A form that was made smaller in between grows again, its controls with it.
  opening.setState(WindowState::normal);
  opening.setBox({0, 0, 12000, 8700});
  ResizeFormToScreen(bench.session(), opening);
  EXPECT_EQ(opening.ListActors.box().left, 40);
}

std::vector<std::string> paths(int from, int to) {
  std::vector<std::string> result;
  for (int i = from; i < to; ++i) result.push_back("C:\\" + std::to_string(i));
  return result;
}

TEST(RecentFiles, CountAdditionsUpToTheCapacity) {
  Opening opening;
  for (int i = 0; i < 10; ++i) AddMRUItem(opening, "C:\\" + std::to_string(i));
  EXPECT_EQ(opening.MruCount, 10);
  EXPECT_EQ(opening.ListMRU.items(), paths(0, 10));
  for (int i = 10; i < 25; ++i) {
    AddMRUItem(opening, "C:\\" + std::to_string(i));
    EXPECT_EQ(opening.MruCount, 10);
    EXPECT_EQ(opening.ListMRU.items(), paths(i - 9, i + 1));
  }
}

TEST(RecentFiles, IgnoreCaseButNotSpelling) {
  Opening opening;
  AddMRUItem(opening, "C:\\a.cr2");
  AddMRUItem(opening, "c:\\A.Cr2");
  EXPECT_EQ(opening.ListMRU.count(), 1);
  AddMRUItem(opening, "C:\\\\a.cr2");
  EXPECT_EQ(opening.ListMRU.count(), 2);
}

TEST(RecentFiles, AnElementIsAddedWhateverIsListed) {
  Opening opening;
  AddMenuElement(opening, "C:\\a.cr2");
  AddMenuElement(opening, "C:\\a.cr2");
  EXPECT_EQ(opening.ListMRU.count(), 2);
  EXPECT_EQ(opening.MruCount, 2);
}

TEST(RecentFiles, EndWhenTheCountIsUsedUp) {
  Opening opening;
  for (int i = 0; i < 10; ++i) AddMRUItem(opening, "C:\\" + std::to_string(i));
  // As a click on a missing file does: the entry goes, its place in the count does not come back.
  opening.ListMRU.remove(0);
  opening.ListMRU.remove(0);
  AddMRUItem(opening, "C:\\10");
  EXPECT_EQ(opening.MruCount, 11);
  EXPECT_EQ(opening.ListMRU.items(), paths(2, 11));
  AddMRUItem(opening, "C:\\11");
  EXPECT_EQ(opening.MruCount, 11);
  EXPECT_EQ(opening.ListMRU.items(), paths(2, 11)) << "nothing is entered any more";
}

}  // namespace
}  // namespace norvik::front
