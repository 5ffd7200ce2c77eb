#include "desktop/window/scale_note.h"

#include "desktop/bench.h"
#include "front/form_obj.h"

#include <QtTest>

#include <fstream>

namespace norvik::desktop {

namespace {

class ScaleNoteTest : public Bench<front::FormOBJ> {
 protected:
  ScaleNoteTest() {
    std::ofstream(folder.path() + "/m.obj") << "v 0.5 0.25 0.1\nv -.5 0.25 1\nf 1 2 2\n";
    opening.LabelOBJFileName.setCaption("C:\\m.obj");
    opening.TextOBJScale.setText("0");
    opening.TextOBJScale.show();
    dispatcher.setSync([this] { bindings.sync(opening); });
    dispatcher.sync();
  }

  bool appears() {
    return QTest::qWaitFor([this] { return !note.isHidden(); }, 3000);
  }
  bool stays() {
    QTest::qWait(600);
    return note.isHidden();
  }
  void amount(const std::string& text) {
    opening.TextOBJScale.setText(text);
    dispatcher.sync();
  }

  ScaleNote note{maker, opening, window};
};

TEST_F(ScaleNoteTest, ShowsTheFirstLineThatLosesAPoint) {
  EXPECT_TRUE(stays()) << "nothing is scaled by 0";
  amount("2");
  EXPECT_TRUE(note.isHidden()) << "while the operator types nothing is read";
  ASSERT_TRUE(appears());
  // x of the first vertex is 1; so is -x of the second, whose z is 2.
  EXPECT_EQ(note.text(),
            "3 coordinates of this file will be written without their point. The first such line "
            "as it is, and as it will be:\nv 0.5 0.25 0.1\nv  10000000 0.500000 0.200000");
}

TEST_F(ScaleNoteTest, IsGoneWithTheAmountAndTheBox) {
  amount("2");
  ASSERT_TRUE(appears());
  amount("2.5");
  EXPECT_TRUE(note.isHidden());
  EXPECT_TRUE(stays());
  amount("2");
  ASSERT_TRUE(appears());
  opening.TextOBJScale.hide();
  dispatcher.sync();
  EXPECT_TRUE(note.isHidden());
  EXPECT_TRUE(stays());
}

TEST_F(ScaleNoteTest, SaysNothingWhereAllPointsStayOrNothingCanBeRead) {
  std::ofstream(folder.path() + "/m.obj") << "v 0.1 0.25 0.1\n";
  amount("3");
  EXPECT_TRUE(stays());
  opening.LabelOBJFileName.setCaption("C:\\none.obj");
  dispatcher.sync();
  EXPECT_TRUE(stays());
  std::ofstream(folder.path() + "/m.obj") << "v 1 1 3e38\n";
  opening.LabelOBJFileName.setCaption("C:\\m.obj");
  dispatcher.sync();
  EXPECT_TRUE(stays()) << "the scaler will say so itself";
}

}  // namespace

}  // namespace norvik::desktop
