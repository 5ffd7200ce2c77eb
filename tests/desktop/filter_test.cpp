#include "desktop/bench.h"
#include "desktop/bind/drop_mark.h"
#include "desktop/window/list_filter.h"

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

namespace norvik::desktop {

namespace {

struct FilterForm : front::Form {
  FilterForm() : Form("FilterForm", "Filter") {}
  front::ListBox List{*this, "List", front::Selection::multiple};
  front::PictureButton Target{*this, "Target"};
};

class FilterTest : public Bench<FilterForm> {
 protected:
  FilterTest() {
    for (const char* item : {"head:1", "\tSmile", "head:1", "\tFrown", "hand:1", "\tERC Channel",
                             "\tSlaved Channel: Grip", "hand:1", "\tSmileHand"}) {
      form.List.add(item);
    }
    auto* column = new QVBoxLayout(&window);
    view = &maker.list(form.List, window);
    filter = new ListFilter(form.List, *view, window);
    column->addWidget(filter);
    column->addWidget(view);
    window.resize(300, 400);
    window.show();
    dispatcher.sync();
    filter->open();
  }
  void type(const char* text) { window.findChild<QLineEdit*>("Filter.List")->setText(text); }
  QStringList seen() const {
    QStringList items;
    for (int row = 0; row < view->model()->rowCount(); ++row) {
      items << view->model()->index(row, 0).data().toString().trimmed();
    }
    return items;
  }
  void click(int row, Qt::KeyboardModifiers keys = {}) const {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, keys,
                      view->visualRect(view->model()->index(row, 0)).center());
  }
  QString count() const { return window.findChild<QLabel*>("FilterCount.List")->text(); }

  ListView* view = nullptr;
  ListFilter* filter = nullptr;
};

TEST_F(FilterTest, AChannelIsShownWithWhatBelongsToIt) {
  type("smile");
  EXPECT_EQ(seen(), (QStringList{"head:1", "Smile", "hand:1", "SmileHand"}));
  EXPECT_EQ(count(), "4 of 9");
  type("grip");
  EXPECT_EQ(seen(), (QStringList{"hand:1", "ERC Channel", "Slaved Channel: Grip"}));
  type("");
  EXPECT_EQ(view->model()->rowCount(), 9);
  EXPECT_EQ(count(), "");
}

TEST_F(FilterTest, TheListAndItsIndexesStay) {
  const std::vector<std::string> items = form.List.items();
  type("smile");
  click(3);
  EXPECT_EQ(form.List.items(), items);
  EXPECT_EQ(form.List.index(), 8);
  EXPECT_EQ(form.List.selection(), std::vector<int>{8});
}

TEST_F(FilterTest, WhatIsSelectedStaysSo) {
  click(3);
  type("smile");
  EXPECT_EQ(form.List.selection(), std::vector<int>{3});
  EXPECT_EQ(form.List.index(), 3);
  EXPECT_EQ(count(), "4 of 9, 1 selected not shown");
  type("");
  EXPECT_EQ(form.List.selection(), std::vector<int>{3});
  EXPECT_EQ(view->selectionModel()->selectedIndexes().size(), 1);
}

TEST_F(FilterTest, AnotherChoiceTakesThePlaceOfWhatIsNotShown) {
  click(3);
  type("smile");
  click(1);
  EXPECT_EQ(form.List.selection(), std::vector<int>{1});
}

TEST_F(FilterTest, AChoiceWithControlIsAdded) {
  click(3);
  type("smile");
  click(1, Qt::ControlModifier);
  EXPECT_EQ(form.List.selection(), (std::vector<int>{1, 3}));
}

TEST_F(FilterTest, APlainClickOnTheChosenItemIsAChoiceToo) {
  click(1);
  click(3, Qt::ControlModifier);
  type("smile");
  click(1);
  EXPECT_EQ(form.List.selection(), std::vector<int>{1});
}

TEST_F(FilterTest, ARangeLeavesOutWhatIsNotShown) {
  type("smile");
  click(1);
  click(3, Qt::ShiftModifier);
  EXPECT_EQ(form.List.selection(), (std::vector<int>{1, 4 + 3, 8}));
}

TEST_F(FilterTest, NewItemsAreFilteredToo) {
  type("smile");
  form.List.add("foot:1");
  form.List.add("\tSmileFoot");
  dispatcher.sync();
  EXPECT_EQ(seen().last(), "SmileFoot");
  EXPECT_EQ(count(), "6 of 11");
}

TEST_F(FilterTest, EscapeShowsAllAgain) {
  type("smile");
  QTest::keyClick(window.findChild<QLineEdit*>("Filter.List"), Qt::Key_Escape);
  EXPECT_EQ(view->model()->rowCount(), 9);
  EXPECT_FALSE(filter->isVisible());
}

TEST_F(FilterTest, LettersFindAnItemThatIsShown) {
  type("smile");
  view->setFocus();
  QTest::keyClicks(view, "smileh");
  EXPECT_EQ(form.List.index(), 8);
}

TEST_F(FilterTest, WhatTakesADragIsOutlinedMeanwhile) {
  form.Target.dropped.add([](front::Control&) {});
  auto& target = maker.picture(form.Target, window, 24);
  target.show();
  const auto outlined = [&target] { return target.findChild<QWidget*>("DropOutline") != nullptr; };
  {
    const DropMarks marks;
    EXPECT_TRUE(outlined());
  }
  EXPECT_FALSE(outlined());
}

}  // namespace

}  // namespace norvik::desktop
