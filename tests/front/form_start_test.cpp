#include "front/form_start.h"

#include "front/choice_controls.h"
#include "front/list_box.h"

#include <gtest/gtest.h>

namespace norvik::front {

namespace {

class Sheet : public Form {
 public:
  Sheet() : Form("Sheet", "A sheet") {
    ListHead.add("head");
    LabelHidden.hide();
    OptionFirst.setValue(true);
    start_.remember(*this);
  }

  void restoreStart() { start_.restore(); }

  ListBox ListHead{*this, "ListHead", Selection::multiple};
  Label LabelHidden{*this, "LabelHidden", "Hidden"};
  TextBox TextValue{*this, "TextValue"};
  CheckBox CheckAll{*this, "CheckAll", "All"};
  OptionButton OptionFirst{*this, "OptionFirst", "First"};
  OptionButton OptionSecond{*this, "OptionSecond", "Second"};
  Slider SliderSize{*this, "SliderSize", 0, 9};

 private:
  FormStart start_;
};

TEST(FormStartTest, PutsEverythingBack) {
  Sheet sheet;
  sheet.ListHead.add("neck");
  sheet.ListHead.choose(0);
  sheet.LabelHidden.show();
  sheet.LabelHidden.setCaption("Seen");
  sheet.LabelHidden.setBack(kBlack);
  sheet.LabelHidden.setTip("a tip");
  sheet.TextValue.setText("7");
  sheet.TextValue.setCaret(1, 0);
  sheet.TextValue.setEnabled(false);
  sheet.CheckAll.setValue(true);
  sheet.OptionSecond.setValue(true);
  sheet.SliderSize.setValue(4);

  sheet.restoreStart();
  EXPECT_EQ(sheet.ListHead.items(), std::vector<std::string>{"head"});
  EXPECT_EQ(sheet.ListHead.index(), ListBox::kNone);
  EXPECT_TRUE(sheet.ListHead.selection().empty());
  EXPECT_FALSE(sheet.LabelHidden.visible());
  EXPECT_EQ(sheet.LabelHidden.caption(), "Hidden");
  EXPECT_EQ(sheet.LabelHidden.back(), kWhite);
  EXPECT_EQ(sheet.LabelHidden.tip(), "");
  EXPECT_EQ(sheet.TextValue.text(), "");
  EXPECT_EQ(sheet.TextValue.caret(), 0U);
  EXPECT_TRUE(sheet.TextValue.enabled());
  EXPECT_FALSE(sheet.CheckAll.value());
  EXPECT_TRUE(sheet.OptionFirst.value());
  EXPECT_FALSE(sheet.OptionSecond.value());
  EXPECT_EQ(sheet.SliderSize.value(), 0);
}

TEST(FormStartTest, RestoresAsOftenAsItIsAsked) {
  Sheet sheet;
  for (int i = 0; i < 3; ++i) {
    sheet.ListHead.clear();
    sheet.TextValue.setText("x");
    sheet.restoreStart();
    EXPECT_EQ(sheet.ListHead.count(), 1);
    EXPECT_EQ(sheet.TextValue.text(), "");
  }
}

}  // namespace

}  // namespace norvik::front
