#include "desktop/bench.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

namespace norvik::desktop {

namespace {

struct ListForm : front::Form {
  ListForm() : Form("ListForm", "Lists") {}
  front::ListBox Single{*this, "Single"};
  front::ListBox Several{*this, "Several", front::Selection::multiple};
};

class ListTest : public Bench<ListForm> {
 protected:
  ListView& show(front::ListBox& list) {
    ListView& view = maker.list(list, window);
    view.setGeometry(0, 0, 300, 300);
    view.show();
    return view;
  }
  static void fill(front::ListBox& list, std::initializer_list<const char*> items) {
    for (const char* item : items) list.add(item);
  }
  static void click(ListView& view, int row, Qt::KeyboardModifiers keys = {},
                    Qt::MouseButton button = Qt::LeftButton) {
    const QRect place = view.visualRect(view.model()->index(row, 0));
    QTest::mouseClick(view.viewport(), button, keys, place.center());
  }
};

TEST_F(ListTest, ShowsTheControlsItems) {
  ListView& view = show(form.Single);
  fill(form.Single, {"skin", "\tlips"});
  dispatcher.sync();
  ASSERT_EQ(view.model()->rowCount(), 2);
  EXPECT_EQ(view.model()->index(0, 0).data().toString(), "skin");
  EXPECT_EQ(view.model()->index(1, 0).data().toString(), "    lips");
  EXPECT_EQ(view.objectName(), "Single");
}

TEST_F(ListTest, ABytesOfAnOlderSystemIsShownAsItsCharacter) {
  ListView& view = show(form.Single);
  form.Single.add(
      "fa\xE7"
      "ade");
  dispatcher.sync();
  EXPECT_EQ(view.model()->index(0, 0).data().toString(), QString::fromUtf8("fa\xC3\xA7"
                                                                           "ade"));
}

TEST_F(ListTest, AClickChoosesAndIsDelivered) {
  fill(form.Single, {"a", "b", "c"});
  std::vector<std::string> seen;
  form.Single.pressed.add(
      [&](front::Mouse) { seen.push_back("pressed " + std::string{form.Single.chosen()}); });
  form.Single.clicked.add([&] { seen.push_back("clicked " + std::string{form.Single.chosen()}); });
  ListView& view = show(form.Single);
  click(view, 1);
  EXPECT_EQ(seen, (std::vector<std::string>{"pressed b", "clicked b"}));
  EXPECT_EQ(form.Single.selection(), std::vector<int>{1});
}

TEST_F(ListTest, ARightClickIsDeliveredAndChoosesNothing) {
  fill(form.Single, {"a", "b"});
  int rights = 0;
  form.Single.released.add(
      [&](front::Mouse mouse) { rights += mouse.button == front::MouseButton::right ? 1 : 0; });
  ListView& view = show(form.Single);
  click(view, 1, {}, Qt::RightButton);
  EXPECT_EQ(rights, 1);
  EXPECT_TRUE(form.Single.selection().empty());
}

TEST_F(ListTest, SelectsSeveralWithControlAndShift) {
  fill(form.Several, {"a", "b", "c", "d", "e"});
  ListView& view = show(form.Several);
  click(view, 0);
  click(view, 2, Qt::ControlModifier);
  EXPECT_EQ(form.Several.selection(), (std::vector<int>{0, 2}));
  click(view, 4, Qt::ShiftModifier);
  EXPECT_EQ(form.Several.selection(), (std::vector<int>{0, 2, 3, 4}));
  EXPECT_EQ(form.Several.index(), 4);
}

TEST_F(ListTest, AToolsSelectionIsShown) {
  fill(form.Several, {"a", "b", "c"});
  ListView& view = show(form.Several);
  form.Several.choose(0);
  form.Several.choose(2);
  dispatcher.sync();
  const auto rows = view.selectionModel()->selectedIndexes();
  ASSERT_EQ(rows.size(), 2);
  form.Several.clearSelection();
  dispatcher.sync();
  EXPECT_TRUE(view.selectionModel()->selectedIndexes().empty());
}

TEST_F(ListTest, ADoubleClickDeliversNoFurtherRelease) {
  fill(form.Single, {"a"});
  int doubles = 0;
  int releases = 0;
  form.Single.doubleClicked.add([&] { ++doubles; });
  form.Single.released.add([&](front::Mouse) { ++releases; });
  ListView& view = show(form.Single);
  const QPoint place = view.visualRect(view.model()->index(0, 0)).center();
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(doubles, 1);
  EXPECT_EQ(releases, 0);
}

TEST_F(ListTest, TypedLettersFindAnItemBehindItsBlanks) {
  fill(form.Single, {"    hip:1", "    abdomen:1", "    neck:1", "    narrow:1"});
  int clicks = 0;
  form.Single.clicked.add([&] { ++clicks; });
  ListView& view = show(form.Single);
  view.setFocus();
  QTest::keyClicks(&view, "ne");
  EXPECT_EQ(form.Single.index(), 2);
  EXPECT_EQ(clicks, 0);
  QTest::keyClick(&view, Qt::Key_Return);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ListTest, AHundredThousandItemsAreShownWithoutACopyAndAtOnce) {
  ListView& view = show(form.Several);
  constexpr int kMany = 100000;
  for (int i = 0; i < kMany; ++i) form.Several.add("item " + std::to_string(i));
  QElapsedTimer clock;
  clock.start();
  dispatcher.sync();
  view.scrollToBottom();
  view.grab();
  EXPECT_LT(clock.elapsed(), 500);
  EXPECT_EQ(view.model()->rowCount(), kMany);
  const QRect last = view.visualRect(view.model()->index(kMany - 1, 0));
  EXPECT_TRUE(view.viewport()->rect().contains(last));
  view.selectAll();
  EXPECT_EQ(form.Several.selection().size(), static_cast<std::size_t>(kMany));
}

TEST_F(ListTest, ARemovedItemKeepsThePlaceInTheList) {
  ListView& view = show(form.Single);
  for (int i = 0; i < 500; ++i) form.Single.add(std::to_string(i));
  dispatcher.sync();
  view.doItemsLayout();
  view.verticalScrollBar()->setValue(200);
  form.Single.remove(210);
  dispatcher.sync();
  EXPECT_EQ(view.verticalScrollBar()->value(), 200);
}

TEST_F(ListTest, WhatHappensWhileAHandlerRunsIsNotDelivered) {
  fill(form.Single, {"a", "b"});
  int clicks = 0;
  ListView& view = show(form.Single);
  form.Single.clicked.add([&] {
    ++clicks;
    if (clicks == 1) click(view, 0);
  });
  click(view, 1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ListTest, TicksAreSetWithTheMouse) {
  std::vector<int> ticks;
  form.Single.tickChanged.add([&](int index) { ticks.push_back(index); });
  fill(form.Single, {"a", "b"});
  ListView& view = show(form.Single);
  const QRect row = view.visualRect(view.model()->index(1, 0));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, row.topLeft() + QPoint(8, 8));
  EXPECT_EQ(ticks, std::vector<int>{1});
  EXPECT_TRUE(form.Single.ticked(1));
  EXPECT_EQ(view.model()->index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
}

}  // namespace

}  // namespace norvik::desktop
