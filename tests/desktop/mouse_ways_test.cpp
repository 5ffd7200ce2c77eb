// Whatever is dropped or drawn with the mouse has a way by the keyboard, which ends in the same
// events.

#include "desktop/form_scenes.h"
#include "desktop/program_bench.h"
#include "dials/renamer_form.h"
#include "tools/form_launch.h"

#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include <map>
#include <set>

namespace norvik::desktop {
namespace {

class MouseWays : public ProgramBench {
 protected:
  Hand hand() { return {*program_, asker_, folder_.path()}; }
  QWidget& in(const char* form, const char* name) {
    return *hand().window(form).findChild<QWidget*>(QString::fromLatin1(name));
  }
  void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers held = {}) {
    widget.window()->activateWindow();
    widget.setFocus();
    QTest::keyClick(&widget, key, held);
    QTest::qWait(30);
  }
  void waitForKeys(QWidget& window) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
};

TEST_F(MouseWays, EveryDropHasAKey) {
  start("");
  // Which test below shows the key.
  const std::map<std::string, std::string> keys{{"PictureTrash", "DeleteIsADropOnTheTrash"},
                                                {"Renamer.Picture1", "RenameIsADropOnThePicture"},
                                                {"FormLaunch.Picture1", "ChooseIsADropOfAFile"}};
  std::set<std::string> targets;
  for (const front::Form* form : session().forms()) {
    for (const front::Control* control : form->controls()) {
      const bool takes = control->dropped.hasHandlers() || control->filesDropped.hasHandlers();
      if (takes) targets.insert(session().nameOf(*control));
    }
  }
  std::set<std::string> known;
  for (const auto& [target, test] : keys) known.insert(target);
  EXPECT_EQ(targets, known);
}

TEST_F(MouseWays, DeleteIsADropOnTheTrash) {
  start(kFigure);
  int drops = 0;
  opening().PictureTrash.dropped.add([&](front::Control& from) {
    EXPECT_EQ(&from, &opening().ListChannels);
    ++drops;
  });
  hand().item(opening().ListActors, "head:1");
  hand().click(opening().PictureViewChannels);
  hand().item(opening().ListChannels, "LongHead");
  press(in("Opening", "ListChannels"), Qt::Key_Delete);
  EXPECT_EQ(drops, 0) << "the trash is not armed";
  press(in("Opening", "PictureTrash"), Qt::Key_Space);
  asker_.answers = {front::Answer::no};
  press(in("Opening", "ListChannels"), Qt::Key_Delete);
  EXPECT_EQ(drops, 1);
}

TEST_F(MouseWays, RenameIsADropOnThePicture) {
  start(kFigure);
  hand().menu(opening().MenuDialRen);
  auto& form = hand().form<dials::Renamer>("Renamer");
  int drops = 0;
  form.Picture1.dropped.add([&](front::Control& from) {
    EXPECT_EQ(&from, &form.Label1);
    ++drops;
  });
  press(in("Renamer", "Rename"), Qt::Key_Space);
  EXPECT_EQ(drops, 1);
}

TEST_F(MouseWays, ChooseIsADropOfAFile) {
  start("");
  hand().menu(opening().MenuLauncher);
  hand().path("/Poser/Runtime/Libraries/Characters/Tilda/tilda2.cr2");
  press(in("FormLaunch", "ChooseFile"), Qt::Key_Space);
  EXPECT_EQ(opening().OpenedPath, kTilda + "tilda2.cr2");
  EXPECT_TRUE(asker_.paths.empty());
  // A dialog that is left drops nothing.
  opening().OpenedPath.clear();
  press(in("FormLaunch", "ChooseFile"), Qt::Key_Space);
  EXPECT_EQ(opening().OpenedPath, "");
}

TEST_F(MouseWays, DownUnfoldsTheTexturesAndEnterChoosesOne) {
  start(kFigure);
  waitForKeys(window());
  QWidget& box = in("Opening", "TextMainTex");
  press(box, Qt::Key_Down);
  ASSERT_TRUE(opening().ListAllTexMaps.visible());
  QWidget& list = in("Opening", "ListAllTexMaps");
  EXPECT_EQ(QApplication::focusWidget(), &list);
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_FALSE(opening().ListAllTexMaps.visible());
  EXPECT_NE(opening().ListAllTexMaps.chosen(), "");
  EXPECT_EQ(QApplication::focusWidget(), &box);
}

TEST_F(MouseWays, TheMenuKeyIsARightClick) {
  start(kFigure);
  press(in("Opening", "TextMainOBJ"), Qt::Key_Menu);
  ASSERT_EQ(asker_.boxes.size(), 1U);
  EXPECT_TRUE(asker_.boxes[0].text.contains("doubleclick"));
  press(in("Opening", "PictureViewChannels"), Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(asker_.boxes.size(), 2U);
}

class MeshKeys : public MouseWays {
 protected:
  MeshKeys() {
    start(kMesh);
    Hand operating = hand();
    operating.click(opening().PictureOBJView);
    operating.run([&] { operating.workshop().OptionColorGroups.setValue(true); });
    operating.click(operating.workshop().LabelView);
  }
  front::FormOBJ& workshop() { return hand().workshop(); }
  void set(const char* box, int value) {
    dynamic_cast<QSpinBox&>(in("FormOBJ", box)).setValue(value);
  }
};

TEST_F(MeshKeys, TheBoxOfTheCutIsSaidInNumbers) {
  EXPECT_FALSE(in("FormOBJ", "BoxToCut").isVisible());
  press(in("FormOBJ", "PictureLop"), Qt::Key_Space);
  ASSERT_TRUE(in("FormOBJ", "BoxToCut").isVisible());
  std::vector<std::string> events;
  const auto note = [&events](const char* what) {
    return [&events, what](front::Mouse mouse) {
      events.push_back(what + std::to_string(mouse.x) + "," + std::to_string(mouse.y));
    };
  };
  workshop().PictureStore.pressed.add(note("press "));
  workshop().PictureStore.moved.add(note("move "));
  workshop().PictureStore.released.add(note("release "));
  set("CutFirst.across", 20);
  set("CutFirst.down", 30);
  set("CutSecond.across", 400);
  set("CutSecond.down", 500);
  asker_.answers = {front::Answer::no};
  press(in("FormOBJ", "CutBox"), Qt::Key_Space);
  EXPECT_EQ(events, (std::vector<std::string>{"press 20,30", "move 400,500", "release 400,500"}));
  ASSERT_EQ(asker_.boxes.size(), 1U);
  EXPECT_TRUE(asker_.boxes[0].text.contains("remove the mesh in this box"));
  EXPECT_FALSE(in("FormOBJ", "BoxToCut").isVisible()) << "a No ends the cut";
}

TEST_F(MeshKeys, EnterChoosesAViewAndSpaceIsLeftToTheSpin) {
  auto& side = dynamic_cast<QRadioButton&>(in("FormOBJ", "OptionSideView"));
  press(side, Qt::Key_Return);
  EXPECT_TRUE(workshop().OptionSideView.value());
}

TEST_F(MeshKeys, CtrlMovesTheViewAsTheWheelDoes) {
  auto& view = dynamic_cast<SurfaceView&>(in("FormOBJ", "PictureStore"));
  ASSERT_TRUE(view.isVisible());
  const QRectF before = view.pictureBox();
  QWidget& stack = in("FormOBJ", "ViewStack");
  for (int i = 0; i < 4; ++i) press(stack, Qt::Key_Plus, Qt::ControlModifier);
  const QRectF near = view.pictureBox();
  EXPECT_GT(near.width(), 3 * before.width());
  press(stack, Qt::Key_Right, Qt::ControlModifier);
  EXPECT_LT(view.pictureBox().left(), near.left());
  for (int i = 0; i < 4; ++i) press(stack, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(view.pictureBox().width(), before.width());
}

TEST_F(MeshKeys, EscapeGivesTheKeysBackToTheViews) {
  workshop().TextNotes.show();
  dispatcher().sync();
  waitForKeys(hand().window("FormOBJ"));
  press(in("FormOBJ", "TextNotes"), Qt::Key_Escape);
  EXPECT_EQ(QApplication::focusWidget(), &in("FormOBJ", "ViewStack"));
  press(in("FormOBJ", "TextNotes"), Qt::Key_Tab);
  EXPECT_NE(QApplication::focusWidget(), &in("FormOBJ", "TextNotes"));
  EXPECT_EQ(workshop().TextNotes.text(), "");
}

}  // namespace
}  // namespace norvik::desktop
