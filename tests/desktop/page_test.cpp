#include "desktop/bench.h"
#include "desktop/page/page_view.h"

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QtTest>

namespace norvik::desktop {

namespace {

struct PageForm : front::Form {
  PageForm() : Form("PageForm", "Page") {}
  front::TextPane Page{*this, "Page"};
};

class PageTest : public Bench<PageForm> {
 protected:
  PageTest() {
    auto* column = new QVBoxLayout(&window);
    view = &maker.page(form.Page, window);
    column->addWidget(view);
    window.resize(500, 300);
    window.show();
    form.Page.key.add([this](const std::string& key) { keys.push_back(key); });
    form.Page.changed.add([this] { ++changes; });
    form.Page.released.add([this](front::Mouse) { ++clicks; });
    view->setFocus();
  }
  void load(const std::string& bytes) {
    form.Page.reset();
    form.Page.setContent(text::LongText(bytes));
    dispatcher.sync();
  }
  void press(int key, Qt::KeyboardModifiers held = {}) const {
    QTest::keyClick(view, Qt::Key(key), held);
  }
  void type(const char* letters) const { QTest::keyClicks(view, QString::fromUtf8(letters)); }
  std::string content() const { return form.Page.text(); }

  PageView* view = nullptr;
  std::vector<std::string> keys;
  int changes = 0;
  int clicks = 0;
};

TEST_F(PageTest, TypesIntoThePaneAndTellsItsKeys) {
  load("ab\r\ncd");
  type("x1");
  press(Qt::Key_Return);
  press(Qt::Key_Tab);
  press(Qt::Key_Delete);
  press(Qt::Key_Backspace);
  EXPECT_EQ(content(), "x1\r\nb\r\ncd");
  EXPECT_EQ(keys, (std::vector<std::string>{"x", "1", "Enter", "Tab", "Delete", "Backspace"}));
  EXPECT_EQ(changes, 6);
  EXPECT_EQ(form.Page.caret(), 4U);
}

TEST_F(PageTest, TellsTheNumberPadFromTheDigits) {
  load("");
  QTest::keyClick(view, Qt::Key_5, Qt::KeypadModifier);
  press(Qt::Key_F3);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(keys, (std::vector<std::string>{"Num5", "F3", "Ctrl+c"}));
}

TEST_F(PageTest, KeepsLineEndsAndBytesThatItDoesNotTouch) {
  load("one\ntwo\rthree\r\n\xE9\x01");
  press(Qt::Key_End, Qt::ControlModifier);
  QTest::sendKeyEvent(QTest::Click, view, Qt::Key_Udiaeresis, QStringLiteral("\u00FC"), {});
  EXPECT_EQ(content(), "one\ntwo\rthree\r\n\xE9\x01\xFC") << "in the coding of the line";
  press(Qt::Key_Home, Qt::ControlModifier);
  press(Qt::Key_End);
  press(Qt::Key_Delete);
  EXPECT_EQ(content(), "onetwo\rthree\r\n\xE9\x01\xFC");
  press(Qt::Key_Z, Qt::ControlModifier);
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(content(), "one\ntwo\rthree\r\n\xE9\x01");
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(content(), "one\ntwo\rthree\r\n\xE9\x01") << "the load of the first text is no step";
  press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(content(), "one\ntwo\rthree\r\n\xE9\x01\xFC");
}

TEST_F(PageTest, StepsOverCharactersWordsAndLines) {
  load("a\xC3\xA4\r\n\tword two\r\nx");
  press(Qt::Key_Right);
  press(Qt::Key_Right);
  EXPECT_EQ(form.Page.caret(), 3U) << "two bytes, one letter";
  press(Qt::Key_Right);
  EXPECT_EQ(form.Page.caret(), 5U) << "CR LF is one step";
  press(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(form.Page.caret(), 6U);
  press(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(form.Page.caret(), 11U);
  press(Qt::Key_Home);
  EXPECT_EQ(form.Page.caret(), 6U);
  press(Qt::Key_Home);
  EXPECT_EQ(form.Page.caret(), 5U);
  press(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(form.Page.selectionLength(), 9U);
  press(Qt::Key_Up);
  EXPECT_EQ(form.Page.caret(), 3U);
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_EQ(form.Page.caret(), 17U);
}

TEST_F(PageTest, CopiesBytesAndPastesLinesAsCrLf) {
  load("a\nb");
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("a\nb"));
  press(Qt::Key_End, Qt::ControlModifier);
  press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(content(), "a\nba\nb");
  QGuiApplication::clipboard()->setText(QStringLiteral("x\ny"));
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(content(), "x\r\ny");
}

TEST_F(PageTest, SelectsByTheMouse) {
  load("one two\r\nthree");
  const QPoint place(view->viewport()->width() / 4, 5);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(clicks, 1);
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, {80, 5});
  EXPECT_GT(form.Page.selectionLength(), 0U);
}

TEST_F(PageTest, FollowsWhatAToolDoes) {
  std::string lines;
  for (int i = 0; i < 5000; ++i) lines += "line " + std::to_string(i) + "\r\n";
  load(lines);
  const std::size_t place = lines.find("line 4000");
  form.Page.setCaret(place, 9);
  dispatcher.sync();
  const int top = view->verticalScrollBar()->value();
  EXPECT_LE(top, 4000);
  EXPECT_GT(top, 3900);
  press(Qt::Key_Delete);
  EXPECT_EQ(content().size(), lines.size() - 9);
  EXPECT_FALSE(view->grab().isNull());
}

}  // namespace

}  // namespace norvik::desktop
