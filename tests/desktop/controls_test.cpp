#include "desktop/bench.h"
#include "desktop/theme.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>
#include <QToolButton>
#include <QtTest>

namespace norvik::desktop {

namespace {

struct ControlsForm : front::Form {
  ControlsForm() : Form("ControlsForm", "Controls") {}
  front::Label Name{*this, "Name", "Main & Texture"};
  front::TextBox Path{*this, "Path"};
  front::TextBox Notes{*this, "Notes", front::ControlKind::richTextBox};
  front::PictureButton Trash{*this, "PictureTrash"};
  front::Frame Choices{*this, "Choices", "Choices"};
  front::OptionButton One{*this, "One", "One", &Choices};
  front::OptionButton Two{*this, "Two", "Two", &Choices};
  front::CheckBox Batch{*this, "Batch", "Batch"};
  front::CommandButton Done{*this, "Done", "Done"};
  front::Slider Scale{*this, "Scale", -100, 100};
  front::Timer Clock{*this, "Clock", 20};
};

class ControlsTest : public Bench<ControlsForm> {
 protected:
  template <typename Widget>
  Widget& show(front::Control& control) {
    QWidget* widget = maker.make(control, window);
    widget->setGeometry(10, 10, 200, 40);
    return dynamic_cast<Widget&>(*widget);
  }
};

TEST_F(ControlsTest, ALabelShowsItsCaptionAndTellsOfClicks) {
  std::vector<std::string> seen;
  form.Name.released.add([&](front::Mouse) { seen.push_back("released"); });
  form.Name.clicked.add([&] {
    seen.push_back("clicked");
    form.Name.setCaption("new");
  });
  auto& label = show<QLabel>(form.Name);
  EXPECT_EQ(label.text(), "Main & Texture");
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_EQ(seen, (std::vector<std::string>{"released", "clicked"}));
  EXPECT_EQ(label.text(), "new");
  QTest::keyClick(&label, Qt::Key_Space);
  EXPECT_EQ(seen.size(), 4U);
  QTest::mouseClick(&label, Qt::RightButton);
  EXPECT_EQ(seen.size(), 5U);
}

TEST_F(ControlsTest, AControlIsSeenAndReachedExactlyWhenItSaysSo) {
  auto& label = show<QLabel>(form.Name);
  EXPECT_TRUE(label.isVisible());
  form.Name.hide();
  form.Name.setEnabled(false);
  form.Name.setTip("a tip");
  dispatcher.sync();
  EXPECT_FALSE(label.isVisible());
  EXPECT_FALSE(label.isEnabled());
  EXPECT_EQ(label.toolTip(), "a tip");
  form.Name.setTip("");
  dispatcher.sync();
  EXPECT_EQ(label.toolTip(), "");
}

TEST_F(ControlsTest, APictureHasAHintUntilItsControlHasATip) {
  auto& button = show<QToolButton>(form.Trash);
  const QString hint = button.toolTip();
  EXPECT_FALSE(hint.isEmpty());
  form.Trash.setTip("a tip");
  dispatcher.sync();
  EXPECT_EQ(button.toolTip(), "a tip");
  form.Trash.setTip("");
  dispatcher.sync();
  EXPECT_EQ(button.toolTip(), hint);
}

TEST_F(ControlsTest, ADisabledPictureTakesNoClick) {
  int clicks = 0;
  form.Trash.pressed.add([&](front::Mouse) { ++clicks; });
  form.Trash.clicked.add([&] { ++clicks; });
  auto& button = show<QToolButton>(form.Trash);
  form.Trash.setEnabled(false);
  dispatcher.sync();
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ControlsTest, AnEditedPathIsRedInBothThemes) {
  auto& label = show<QLabel>(form.Name);
  form.Name.setFore(front::kPathEdited);
  dispatcher.sync();
  const QColor ink = label.palette().color(QPalette::WindowText);
  EXPECT_GT(ink.red(), ink.blue() + 60);
  EXPECT_GT(ink.red(), ink.green() + 60);
}

TEST_F(ControlsTest, WhatIsTypedReachesTheControl) {
  std::vector<std::string> texts;
  form.Path.changed.add([&] { texts.push_back(form.Path.text()); });
  auto& edit = show<QLineEdit>(form.Path);
  QTest::keyClicks(&edit, "ab");
  EXPECT_EQ(texts, (std::vector<std::string>{"a", "ab"}));
  EXPECT_EQ(form.Path.caret(), 2U);
  form.Path.setText("C:\\x");
  dispatcher.sync();
  EXPECT_EQ(edit.text(), "C:\\x");
  EXPECT_EQ(texts.size(), 2U);
}

TEST_F(ControlsTest, AnEditKeepsTheCodingOfWhatItLeavesAlone) {
  auto& edit = show<QLineEdit>(form.Path);
  form.Path.setText(
      "fa\xE7"
      "ade");
  dispatcher.sync();
  edit.setCursorPosition(6);
  QTest::keyClicks(&edit, "s");
  EXPECT_EQ(form.Path.text(),
            "fa\xE7"
            "ades");
}

TEST_F(ControlsTest, ADoubleClickOrEnterTakesAPath) {
  int taken = 0;
  form.Path.doubleClicked.add([&] { ++taken; });
  auto& edit = show<QLineEdit>(form.Path);
  QTest::mouseDClick(&edit, Qt::LeftButton);
  EXPECT_EQ(taken, 1);
  QTest::keyClick(&edit, Qt::Key_Return);
  EXPECT_EQ(taken, 2);
}

TEST_F(ControlsTest, TheMouseOverABoxIsDeliveredWhereItIsWanted) {
  int moves = 0;
  form.Path.moved.add([&](front::Mouse) { ++moves; });
  auto& edit = show<QLineEdit>(form.Path);
  EXPECT_TRUE(edit.hasMouseTracking());
  QTest::mouseMove(&edit, QPoint(20, 20));
  QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), edit.mapToGlobal(QPointF(5, 5)), Qt::NoButton,
                   Qt::NoButton, {});
  QApplication::sendEvent(&edit, &move);
  EXPECT_GE(moves, 1);
}

TEST_F(ControlsTest, LinesOfAPageEndAsInTheFiles) {
  auto& page = show<QPlainTextEdit>(form.Notes);
  QTest::keyClicks(&page, "a");
  QTest::keyClick(&page, Qt::Key_Return);
  QTest::keyClicks(&page, "b");
  EXPECT_EQ(form.Notes.text(), "a\r\nb");
  form.Notes.setText("x\r\ny");
  dispatcher.sync();
  EXPECT_EQ(page.toPlainText(), "x\ny");
}

TEST_F(ControlsTest, AnArmedPictureIsCheckedAndAClickAloneIsNot) {
  auto& button = show<QToolButton>(form.Trash);
  EXPECT_FALSE(button.icon().isNull());
  EXPECT_FALSE(button.accessibleName().isEmpty());
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_FALSE(button.isChecked());
  form.Trash.activate();
  dispatcher.sync();
  EXPECT_TRUE(button.isChecked());
  form.Trash.rest();
  dispatcher.sync();
  EXPECT_FALSE(button.isChecked());
}

TEST_F(ControlsTest, OneOptionOfAFrameIsSet) {
  auto& one = show<QAbstractButton>(form.One);
  auto& two = show<QAbstractButton>(form.Two);
  int clicks = 0;
  form.Two.clicked.add([&] { ++clicks; });
  form.One.setValue(true);
  dispatcher.sync();
  EXPECT_TRUE(one.isChecked());
  two.click();
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(form.Two.value());
  EXPECT_FALSE(form.One.value());
  EXPECT_FALSE(one.isChecked());
  two.click();
  EXPECT_TRUE(two.isChecked());
}

TEST_F(ControlsTest, ACheckBoxGoesBothWays) {
  auto& box = show<QAbstractButton>(form.Batch);
  bool seen = false;
  form.Batch.clicked.add([&] { seen = form.Batch.value(); });
  box.click();
  EXPECT_TRUE(seen);
  form.Batch.setValue(false);
  dispatcher.sync();
  EXPECT_FALSE(box.isChecked());
}

TEST_F(ControlsTest, ACommandButtonIsClickedByMouseAndKey) {
  int clicks = 0;
  form.Done.clicked.add([&] { ++clicks; });
  auto& button = show<QAbstractButton>(form.Done);
  EXPECT_EQ(button.text(), "Done");
  QTest::mouseClick(&button, Qt::LeftButton);
  QTest::keyClick(&button, Qt::Key_Space);
  EXPECT_EQ(clicks, 2);
}

TEST_F(ControlsTest, ASliderGoesBothWays) {
  int changes = 0;
  form.Scale.changed.add([&] { ++changes; });
  auto& slider = show<QSlider>(form.Scale);
  EXPECT_EQ(slider.minimum(), -100);
  slider.setValue(40);
  EXPECT_EQ(form.Scale.value(), 40);
  EXPECT_EQ(changes, 1);
  form.Scale.setValue(-7);
  dispatcher.sync();
  EXPECT_EQ(slider.value(), -7);
  EXPECT_EQ(changes, 1);
}

TEST_F(ControlsTest, ATimerExpiresUntilItIsStopped) {
  int expiries = 0;
  form.Clock.expired.add([&] {
    if (++expiries == 3) form.Clock.stop();
  });
  maker.timer(form.Clock);
  QTest::qWait(60);
  EXPECT_EQ(expiries, 0);
  form.Clock.start();
  dispatcher.sync();
  QTRY_COMPARE_WITH_TIMEOUT(expiries, 3, 2000);
  QTest::qWait(80);
  EXPECT_EQ(expiries, 3);
}

TEST_F(ControlsTest, ATimerWaitsForTheHandlerUnlessThatPumpsEvents) {
  int expiries = 0;
  form.Clock.expired.add([&] { ++expiries; });
  maker.timer(form.Clock);
  form.Clock.start();
  dispatcher.sync();
  int during = -1;
  int pumped = -1;
  dispatcher.run([&] {
    QTest::qWait(80);
    during = expiries;
    QElapsedTimer clock;
    clock.start();
    while (expiries == 0 && clock.elapsed() < 2000) frontEnd.pumpEvents();
    pumped = expiries;
  });
  EXPECT_EQ(during, 0);
  EXPECT_GE(pumped, 1);
}

}  // namespace

}  // namespace norvik::desktop
