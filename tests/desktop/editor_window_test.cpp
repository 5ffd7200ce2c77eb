// The manual editor at work on the sample.

#include "desktop/page/page_view.h"
#include "desktop/program_bench.h"
#include "editor/form_editor.h"

#include <QComboBox>
#include <QLineEdit>
#include <QToolButton>

namespace norvik::desktop {

namespace {

class EditorWindowTest : public ProgramBench {
 protected:
  EditorWindowTest() {
    start(kTilda + "tilda.cr2");
    QTest::mouseClick(&find<QToolButton>("PictureEditor"), Qt::LeftButton);
    editorWindow().activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(&editorWindow(), 1000));
  }

  editor::FormEditor& form() {
    return dynamic_cast<editor::FormEditor&>(*session().findForm("FormEditor"));
  }
  QWidget& editorWindow() { return find<QWidget>("FormEditor"); }
  template <typename Widget>
  Widget& inEditor(const char* name) {
    return *editorWindow().findChild<Widget*>(QString::fromLatin1(name));
  }
  PageView& page(const char* name) { return *dynamic_cast<PageView*>(&inEditor<QWidget>(name)); }
  void click(const char* picture) {
    QTest::mouseClick(&inEditor<QToolButton>(picture), Qt::LeftButton);
  }
};

TEST_F(EditorWindowTest, ShowsTheDestinationAndMarksAChange) {
  ASSERT_TRUE(editorWindow().isVisible());
  EXPECT_TRUE(editorWindow().windowTitle().contains("tilda.cr2"));
  EXPECT_FALSE(editorWindow().isWindowModified());
  EXPECT_FALSE(page("RichTextBox2").isVisible());
  const std::size_t before = form().RichTextBox1.content().size();
  QTest::keyClick(&page("RichTextBox1"), Qt::Key_X);
  EXPECT_EQ(form().RichTextBox1.content().size(), before + 1);
  EXPECT_TRUE(editorWindow().isWindowModified());
  EXPECT_TRUE(form().LeftDirty);
  EXPECT_EQ(form().LabelLineNum.caption(), "1");
  QTest::keyClick(&page("RichTextBox1"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(form().RichTextBox1.content().size(), before);
}

TEST_F(EditorWindowTest, ShowsASecondFileBesideTheFirst) {
  asker_.answers = {front::Answer::no};
  asker_.paths = {QString::fromStdString(folder_.path() +
                                         "/Poser/Runtime/Libraries/Characters/Tilda/tilda2.cr2")};
  click("PictureSecFile");
  EXPECT_TRUE(page("RichTextBox2").isVisible());
  EXPECT_EQ(form().LabelSecFile.caption(), kTilda + "tilda2.cr2");
  EXPECT_NEAR(page("RichTextBox1").width(), page("RichTextBox2").width(), 20);
}

TEST_F(EditorWindowTest, FindsAndCountsWhatIsTyped) {
  click("PictureFind");
  auto& box = inEditor<QComboBox>("ComboFind");
  ASSERT_TRUE(box.isVisible());
  QTest::keyClicks(box.lineEdit(), "figureResFile");
  QTest::keyClick(box.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(form().RichTextBox1.selectionLength(), 13U);
  const std::size_t first = form().RichTextBox1.caret();
  QTest::keyClick(&page("RichTextBox1"), Qt::Key_F3);
  EXPECT_GT(form().RichTextBox1.caret(), first);
  EXPECT_EQ(box.count(), 1);
  QTest::keyClick(&page("RichTextBox1"), Qt::Key_Escape);
  EXPECT_FALSE(box.isVisible());
  EXPECT_TRUE(editorWindow().isVisible()) << "Escape leaves the find row, not the editor";
}

TEST_F(EditorWindowTest, GoesToALine) {
  auto& box = inEditor<QLineEdit>("TextLineNum");
  QTest::keyClicks(&box, "5");
  QTest::keyClick(&box, Qt::Key_Return);
  const text::LongText& content = form().RichTextBox1.content();
  EXPECT_EQ(form().RichTextBox1.caret(), content.lineStart(4) - 1);
  EXPECT_TRUE(box.text().isEmpty());
}

TEST_F(EditorWindowTest, AsksOnClosingAfterTyping) {
  QTest::keyClick(&page("RichTextBox1"), Qt::Key_X);
  asker_.answers = {front::Answer::no};
  editorWindow().close();
  QTest::qWait(50);
  ASSERT_FALSE(asker_.boxes.empty());
  EXPECT_EQ(asker_.boxes.back().text, "Save changes?");
  EXPECT_FALSE(form().loaded());
  EXPECT_EQ(form().RichTextBox1.content().size(), 0U);
}

}  // namespace

}  // namespace norvik::desktop
