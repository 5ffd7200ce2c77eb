#include "desktop/window/mesh_window.h"

#include "desktop/bench.h"
#include "desktop/window/view_stack.h"
#include "front/form_obj.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>
#include <QtTest>

namespace norvik::desktop {

namespace {

class MeshWindowTest : public Bench<front::FormOBJ> {
 protected:
  MeshWindowTest() {
    form.setLoaded(true);
    form.key.add([this](const std::string& key) { keys += key + " "; });
    form.released.add([this](front::Mouse mouse) {
      released += mouse.button == front::MouseButton::right ? 'r' : 'l';
    });
    form.LabelPlay.released.add([](front::Mouse) {});
    dispatcher.setSync([this] {
      bindings.sync(form);
      workshop.sync();
    });
    workshop.show();
  }

  template <typename Widget>
  Widget& find(const char* name) {
    return *workshop.findChild<Widget*>(QString::fromLatin1(name));
  }

  std::string keys;
  std::string released;
  MeshWindow workshop{maker, session, form, frontEnd, [this] { closed = true; }, nullptr};
  bool closed = false;
};

TEST_F(MeshWindowTest, EveryControlIsThereAndSeenExactlyWhenItSaysSo) {
  // Wide enough for all tools at once.
  workshop.resize(2400, 1000);
  for (const bool visible : {false, true}) {
    for (front::Control* control : form.controls()) control->setVisible(visible);
    dispatcher.sync();
    QTest::qWait(20);
    for (const front::Control* control : form.controls()) {
      const auto* widget = workshop.findChild<QWidget*>(QString::fromStdString(control->name()));
      ASSERT_NE(widget, nullptr) << control->name();
      EXPECT_EQ(widget->isHidden(), !visible) << control->name();
    }
  }
}

TEST_F(MeshWindowTest, TheTitleFollowsTheForm) {
  EXPECT_EQ(workshop.windowTitle(), "OBJ Viewer");
  form.setCaption("OBJ Viewer C:\\a.obj");
  dispatcher.sync();
  EXPECT_EQ(workshop.windowTitle(), "OBJ Viewer C:\\a.obj");
}

TEST_F(MeshWindowTest, KeysReachTheFormWhereverTheOperatorClickedLast) {
  form.ListHotKeys.show();
  form.CommandListGroups.setEnabled(true);
  dispatcher.sync();
  QTest::keyClicks(&find<QWidget>("ViewStack"), "r/");
  QTest::keyClick(&find<QWidget>("ViewStack"), Qt::Key_Space);
  QTest::keyClick(&find<QWidget>("ViewStack"), Qt::Key_Escape);
  EXPECT_EQ(keys, "r / Space Escape ");
  keys.clear();
  QTest::keyClicks(&find<QWidget>("OptionSideView"), "9 ");
  EXPECT_FALSE(form.OptionSideView.value());
  QTest::keyClicks(&find<QWidget>("ListHotKeys"), "*+");
  QTest::keyClicks(&find<QWidget>("CommandListGroups"), "-");
  EXPECT_EQ(keys, "9 Space * + - ");
  EXPECT_TRUE(workshop.isVisible());
  EXPECT_FALSE(closed);
}

TEST_F(MeshWindowTest, WhatIsTypedIntoTheNotesIsNoKeyOfTheView) {
  form.TextNotes.show();
  dispatcher.sync();
  QTest::keyClicks(&find<QWidget>("TextNotes"), "r 9/");
  EXPECT_EQ(form.TextNotes.text(), "r 9/");
  EXPECT_EQ(keys, "");
}

TEST_F(MeshWindowTest, AClickOnAButtonLeavesTheKeysWithTheViews) {
  workshop.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&workshop));
  EXPECT_EQ(QApplication::focusWidget(), &find<QWidget>("ViewStack"));
  QTest::mouseClick(&find<QWidget>("LabelView"), Qt::LeftButton);
  QTest::mouseClick(&find<QWidget>("OptionTopView"), Qt::LeftButton);
  EXPECT_EQ(QApplication::focusWidget(), &find<QWidget>("ViewStack"));
  // A view that goes does not hand the keys to a button.
  form.PictureStore.show();
  dispatcher.sync();
  QTest::mouseClick(&find<QWidget>("PictureStore"), Qt::LeftButton);
  form.PictureStore.hide();
  dispatcher.sync();
  EXPECT_EQ(QApplication::focusWidget(), &find<QWidget>("ViewStack"));
}

TEST_F(MeshWindowTest, TheRightButtonOverTheFormIsTheForms) {
  QTest::mouseClick(&workshop, Qt::RightButton, {}, QPoint(3, workshop.height() - 3));
  EXPECT_EQ(released, "r");
  QTest::mouseClick(&find<QWidget>("PictureObjViewer2"), Qt::RightButton);
  EXPECT_EQ(released, "rr");
  // What has a right click of its own keeps it.
  auto& play = find<QWidget>("LabelPlay");
  workshop.resize(1600, 900);
  ASSERT_TRUE(QTest::qWaitFor([&] { return play.isVisible() && !play.visibleRegion().isEmpty(); }));
  QTest::mouseClick(&play, Qt::RightButton);
  EXPECT_EQ(released, "rr");
}

TEST_F(MeshWindowTest, SaysWhatToDoWhileThereIsNothingToSee) {
  auto& hint = find<QLabel>("ViewHint");
  EXPECT_TRUE(hint.isVisible());
  EXPECT_TRUE(hint.text().contains("View"));
  EXPECT_EQ(hint.palette().color(hint.foregroundRole()), QColor("#6c7684")) << "on white";
  form.PictureStore.show();
  form.CommandListGroups.setEnabled(true);
  dispatcher.sync();
  EXPECT_FALSE(hint.isVisible());
  form.PictureStore.hide();
  form.PictureObjViewer2.hide();
  dispatcher.sync();
  EXPECT_TRUE(hint.isVisible());
  EXPECT_TRUE(hint.text().contains("Space"));
  form.PictureObjViewer2.show();
  dispatcher.sync();
  EXPECT_FALSE(hint.isVisible());
}

TEST_F(MeshWindowTest, ProgressIsSeenWhileALargeMeshIsRead) {
  auto& bar = find<QProgressBar>("MeshProgress");
  workshop.setProgress(1 << 20, 4 << 20);
  EXPECT_FALSE(bar.isVisible());
  workshop.setBusy(true);
  workshop.setProgress(10, 1000);
  EXPECT_FALSE(bar.isVisible());
  workshop.setProgress(1 << 20, 4 << 20);
  EXPECT_TRUE(bar.isVisible());
  EXPECT_EQ(bar.value(), 250);
  workshop.setBusy(false);
  EXPECT_FALSE(bar.isVisible());
}

TEST_F(MeshWindowTest, ToolsAreCalledWhatTheirLabelsSay) {
  form.LabelBoss.setCaption("Render");
  dispatcher.sync();
  EXPECT_EQ(find<QToolButton>("LabelBoss").text(), "Render");
}

TEST_F(MeshWindowTest, ToolsKeepTheirPlacesWhileOneHides) {
  for (front::Control* control : form.controls()) control->show();
  workshop.resize(2400, 1000);
  dispatcher.sync();
  QTest::qWait(20);
  const auto placeOf = [&](const char* name) {
    return find<QWidget>(name).mapTo(&workshop, QPoint(0, 0));
  };
  const QPoint boss = placeOf("LabelBoss");
  const QPoint keysLabel = placeOf("LabelHotKeys");
  form.LabelMirror.hide();
  form.PictureNewFile.hide();
  dispatcher.sync();
  QTest::qWait(20);
  EXPECT_EQ(placeOf("LabelBoss"), boss);
  EXPECT_EQ(placeOf("LabelHotKeys"), keysLabel);
}

TEST_F(MeshWindowTest, EscapeUncoversWhatTheBossMustNotSee) {
  int uncovered = 0;
  form.ImageBoss.clicked.add([&] { ++uncovered; });
  form.ImageBoss.show();
  dispatcher.sync();
  QTest::keyClick(&find<QWidget>("ViewStack"), Qt::Key_Escape);
  EXPECT_EQ(uncovered, 1);
  EXPECT_EQ(keys, "");
  QTest::mouseClick(&find<QWidget>("ImageBoss"), Qt::LeftButton);
  EXPECT_EQ(uncovered, 2);
}

TEST_F(MeshWindowTest, TheCloseBoxUnloadsTheForm) {
  workshop.close();
  QTRY_VERIFY_WITH_TIMEOUT(closed, 1000);
}

TEST_F(MeshWindowTest, TheSecondMeshIsMovedByNumbers) {
  front::PictureBox& overlay = form.PictureAddObjFront;
  overlay.setBox({10, 0, 600, 600});
  front::Mouse grip;
  overlay.pressed.add([&grip](front::Mouse mouse) { grip = mouse; });
  overlay.moved.add([&](front::Mouse mouse) {
    overlay.setBox({overlay.box().left + static_cast<float>(mouse.x - grip.x),
                    overlay.box().top + static_cast<float>(mouse.y - grip.y), 600, 600});
  });
  form.PictureMerge.show();
  dispatcher.sync();
  const double unit = static_cast<double>(form.PictureOBJViewer.box().width);
  find<QDoubleSpinBox>("ShiftRight").setValue(60 / unit);
  find<QDoubleSpinBox>("ShiftUp").setValue(30 / unit);
  EXPECT_EQ(overlay.box().left, 70);
  EXPECT_EQ(overlay.box().top, -30);
  EXPECT_NEAR(find<QDoubleSpinBox>("ShiftRight").value(), 60 / unit, 1e-4);
  // The mouse moves the numbers.
  overlay.setBox({10, 120, 600, 600});
  dispatcher.sync();
  EXPECT_NEAR(find<QDoubleSpinBox>("ShiftRight").value(), 0, 1e-4);
  EXPECT_NEAR(find<QDoubleSpinBox>("ShiftUp").value(), -120 / unit, 1e-4);
}

TEST_F(MeshWindowTest, TheMirrorTurnsFacesRoundWhereItIsTold) {
  form.LabelMirror.show();
  dispatcher.sync();
  find<QCheckBox>("TurnFacesRound").click();
  EXPECT_TRUE(form.TurnFacesRound);
  form.restoreStart();
  form.LabelMirror.show();
  dispatcher.sync();
  EXPECT_FALSE(find<QCheckBox>("TurnFacesRound").isChecked());
}

}  // namespace

}  // namespace norvik::desktop
