#include "desktop/forms/pose_window.h"

#include "desktop/bench.h"
#include "desktop/forms/mor_window.h"
#include "desktop/forms/weld_window.h"
#include "pose/mat_colours.h"
#include "pose/mor_builder.h"
#include "pose/pz2_editor.h"
#include "pose/weld.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QtTest>

#include <memory>

namespace norvik::desktop {

namespace {

/// A form's own window, its tools wired.
template <typename TestForm, typename Window>
class FormWindowTest : public Bench<TestForm> {
 protected:
  void open(std::unique_ptr<Window> made) {
    form_window = std::move(made);
    this->dispatcher.setSync([this] {
      this->bindings.sync(this->form);
      form_window->sync();
    });
    this->form.setLoaded(true);
    form_window->show();
    this->dispatcher.sync();
  }
  WindowParts parts() {
    return {this->maker, this->session, this->frontEnd, [this] { closed = true; }, nullptr};
  }
  template <typename Widget>
  Widget& find(const char* name) {
    return *form_window->template findChild<Widget*>(QString::fromLatin1(name));
  }
  void click(const char* name) { QTest::mouseClick(&find<QWidget>(name), Qt::LeftButton); }
  void clickRow(const char* list, int row) {
    auto& view = find<QListView>(list);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      view.visualRect(view.model()->index(row, 0)).center());
  }

  bool closed = false;
  std::unique_ptr<Window> form_window;
};

class PoseWindowTest : public FormWindowTest<pose::FormPZ2, PoseWindow> {
 protected:
  PoseWindowTest() {
    pose::wirePz2Editor(session, form);
    pose::wireMatColours(session, form);
    form.ListActorsPZ2.add("head");
    form.ListActorsPZ2.add("neck");
    form.ListMaterialsMAT.add("skin");
    form.ListMATColors.add("0.5 0 1 1");
    open(std::make_unique<PoseWindow>(parts(), form));
  }
  void enterMatMode() {
    for (front::Control* control : form.controls()) control->show();
    dispatcher.sync();
  }
};

TEST_F(PoseWindowTest, PartsAreChosenWithTheMouseAndTheKeyboard) {
  EXPECT_TRUE(find<QWidget>("ListActorsPZ2").isVisible());
  EXPECT_FALSE(find<QWidget>("ListMaterialsMAT").isVisible());
  clickRow("ListActorsPZ2", 1);
  QTest::keyClick(&find<QWidget>("ListActorsPZ2"), Qt::Key_Return);
  EXPECT_EQ(form.ListActorsWanted.items(), std::vector<std::string>{"neck"});
  EXPECT_EQ(form.ListActorsPZ2.items(), std::vector<std::string>{"head"});
}

TEST_F(PoseWindowTest, DoneIsTheDefaultAndEscapeCloses) {
  EXPECT_EQ(find<QPushButton>("LabelDonePZ2").text(), "Done");
  EXPECT_TRUE(find<QPushButton>("LabelDonePZ2").isDefault());
  QTest::keyClick(form_window.get(), Qt::Key_Escape);
  QTest::qWait(20);
  EXPECT_TRUE(closed);
}

TEST_F(PoseWindowTest, TheModeChangesThePage) {
  enterMatMode();
  EXPECT_FALSE(find<QWidget>("ListActorsPZ2").isVisible());
  EXPECT_TRUE(find<QWidget>("ListMaterialsMAT").isVisible());
  clickRow("ListMaterialsMAT", 0);
  EXPECT_EQ(form.ShapePresentColor.back(), front::colourOf(128, 0, 255));
  asker.chosenColour = front::colourOf(3, 0, 0);
  QTest::keyClick(&find<QWidget>("ListMaterialsMAT"), Qt::Key_Menu);
  EXPECT_EQ(form.ListMATColors.item(0), "0.01171875 0 0 1");
}

TEST_F(PoseWindowTest, TheFrameAndItsButtonTellHowColoursAreChanged) {
  enterMatMode();
  click("LabelChangeColor");
  QTest::mouseClick(&find<QWidget>("Frame1"), Qt::LeftButton, {}, {6, 30});
  ASSERT_EQ(asker.boxes.size(), 2U);
  EXPECT_TRUE(asker.boxes[0].text.contains("for.  Be sure"));
  EXPECT_TRUE(asker.boxes[1].text.contains("for. Be sure"));
}

class MorWindowTest : public FormWindowTest<pose::FormMOR, MorWindow> {
 protected:
  MorWindowTest() {
    pose::wireMorBuilder(session, form);
    for (const char* morph : {" Smile", " Frown", " Smile"}) {
      form.ListMorphs.add(morph);
      form.ListValues.add("0");
    }
    open(std::make_unique<MorWindow>(parts(), form));
  }
};

TEST_F(MorWindowTest, EnterSetsTheValueAndDoesNotPressDone) {
  auto& value = find<QLineEdit>("TextValue");
  for (int time = 0; time < 2; ++time) {
    auto& view = find<QListView>("ListMorphs");
    const QPoint first = view.visualRect(view.model()->index(0, 0)).center();
    clickRow("ListMorphs", 0);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(form_window->focusWidget(), &value);
    view.setFocus();
  }
  value.setFocus();
  value.selectAll();
  QTest::keyClicks(&value, ".5");
  EXPECT_EQ(form.ListValues.item(0), "0");
  QTest::keyClick(&value, Qt::Key_Return);
  EXPECT_EQ(form.ListValues.items(), (std::vector<std::string>{".5", "0", ".5"}));
  EXPECT_FALSE(closed);
}

class WeldWindowTest : public FormWindowTest<pose::FormPZ2Combine, WeldWindow> {
 protected:
  WeldWindowTest() {
    pose::wireWelder(session, form);
    const auto add = [](front::ListBox& names, front::ListBox& keys, const char* name,
                        const char* key) {
      names.add(name);
      keys.add(key);
    };
    add(form.ListFile1, form.ListKeyLinesFirst, " Smile", "\t\t\tk 0 0.5");
    add(form.ListFile1, form.ListKeyLinesFirst, " Frown", "\t\t\tk 0 1");
    add(form.ListFile2, form.ListKeyLines, " Frown", "\t\t\tk  0  1");
    add(form.ListFile2, form.ListKeyLines, " Smile", "k 0 0");
    add(form.ListFile2, form.ListKeyLines, " Wink", "\t\t\tk 0 2");
    open(std::make_unique<WeldWindow>(parts(), form));
  }
};

TEST_F(WeldWindowTest, ClicksCheckSettingsOffOneByOne) {
  clickRow("ListFile2", 0);
  clickRow("ListFile2", 2);
  EXPECT_EQ(form.ListFile2.selection(), (std::vector<int>{0, 2}));
  clickRow("ListFile2", 0);
  EXPECT_EQ(form.ListFile2.selection(), std::vector<int>{2});
  clickRow("ListFile2", 1);
  EXPECT_EQ(form.LabelKey2.caption(), "k 0 0");
}

TEST_F(WeldWindowTest, SelectsAllThatDiffer) {
  for (auto* button : form_window->findChildren<QAbstractButton*>()) {
    if (button->text() == "Select all that differ") QTest::mouseClick(button, Qt::LeftButton);
  }
  EXPECT_EQ(form.ListFile2.selection(), (std::vector<int>{1, 2}));
}

}  // namespace

}  // namespace norvik::desktop
