#include "desktop/bench.h"
#include "desktop/bind/menu_binding.h"

#include <QMenu>
#include <QMenuBar>
#include <QtTest>

#include <set>

namespace norvik::desktop {

namespace {

struct EmptyForm : front::Form {
  EmptyForm() : Form("EmptyForm", "") {}
};

class MenuTest : public Bench<EmptyForm> {
 protected:
  MenuTest() {
    dispatcher.setSync([this] { bindings.sync(opening); });
    bar.resize(900, 30);
  }
  QMenuBar bar{&window};
};

TEST_F(MenuTest, TheTreeStandsInItsOrder) {
  const MenuTree menus(dispatcher, bindings, opening, bar);
  QStringList names;
  for (const QAction* action : bar.actions()) names << action->objectName();
  EXPECT_EQ(names, (QStringList{"menuFile", "MenuCR2Tools", "MenuPhiTools", "MenuInstallCR2",
                                "MenuLauncher", "MenuPoser", "MenuPStart", "MenuNotes", "MenuSpace",
                                "MenuHelpTop"}));
  names.clear();
  for (const QAction* action : menus.menu(opening.MenuMakeMaster)->actions()) {
    names << action->objectName();
  }
  EXPECT_EQ(names, (QStringList{"MenuMasterP3", "MenuMasterP4", "MenuVic", "MenuMasterAny"}));
}

TEST_F(MenuTest, EveryEntryOfAMenuHasAMnemonicOfItsOwn) {
  const MenuTree menus(dispatcher, bindings, opening, bar);
  std::set<QChar> used;
  for (const QAction* action : bar.actions()) {
    if (action->isSeparator()) continue;
    const auto place = action->text().indexOf('&');
    ASSERT_GE(place, 0) << action->objectName().toStdString();
    EXPECT_TRUE(used.insert(action->text()[place + 1].toUpper()).second);
  }
}

TEST_F(MenuTest, TheMenusAboveOpenBeforeAnEntryIsChosen) {
  std::vector<std::string> seen;
  opening.MenuCR2Tools.opened.add([&] { seen.push_back("tools"); });
  opening.MenuBend.opened.add([&] { seen.push_back("bend"); });
  opening.MenuBendOff.clicked.add([&] { seen.push_back("off"); });
  opening.MenuCR2Tools.setEnabled(true);
  MenuTree menus(dispatcher, bindings, opening, bar);
  menus.action(opening.MenuBendOff)->trigger();
  EXPECT_EQ(seen, (std::vector<std::string>{"tools", "bend", "off"}));
}

TEST_F(MenuTest, AMenuThatIsUnfoldedIsNotOpenedAgain) {
  std::vector<std::string> seen;
  opening.menuFile.opened.add([&] { seen.push_back("file"); });
  opening.MenuFileSave.clicked.add([&] { seen.push_back("save"); });
  MenuTree menus(dispatcher, bindings, opening, bar);
  QMenu& file = *menus.menu(opening.menuFile);
  file.popup(QPoint(10, 10));
  QTest::mouseClick(&file, Qt::LeftButton, {},
                    file.actionGeometry(menus.action(opening.MenuFileSave)).center());
  EXPECT_EQ(seen, (std::vector<std::string>{"file", "save"}));
  QTest::qWait(1);
  menus.action(opening.MenuFileSave)->trigger();
  EXPECT_EQ(seen.size(), 4U);
}

TEST_F(MenuTest, ADisabledMenuHoldsBackItsEntries) {
  int clicks = 0;
  opening.MenuBrack.clicked.add([&] { ++clicks; });
  MenuTree menus(dispatcher, bindings, opening, bar);
  opening.MenuCR2Tools.setEnabled(false);
  dispatcher.sync();
  EXPECT_FALSE(menus.action(opening.MenuCR2Tools)->isEnabled());
  menus.choose(opening.MenuBrack);
  EXPECT_EQ(clicks, 0);
  opening.MenuCR2Tools.setEnabled(true);
  dispatcher.sync();
  menus.choose(opening.MenuBrack);
  EXPECT_EQ(clicks, 1);
}

TEST_F(MenuTest, ANewCaptionIsShown) {
  const MenuTree menus(dispatcher, bindings, opening, bar);
  opening.MenuAbout.setCaption("About & more");
  dispatcher.sync();
  EXPECT_EQ(menus.action(opening.MenuAbout)->text(), "About && more");
}

}  // namespace

}  // namespace norvik::desktop
