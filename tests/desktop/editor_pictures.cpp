#include "desktop/editor_pictures.h"

#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;
using Take = std::function<void(const QString& name, const QWidget& window)>;
using ChooseTheme = std::function<void(const QString&)>;

constexpr int kShown = 300;  // milliseconds

}  // namespace

void takeEditorPictures(Operator& hand, const QString& drive, const ChooseTheme& chooseTheme,
                        const Take& take) {
  hand.click(u"PictureEditor"_s);
  QWidget& window = hand.find(u"FormEditor"_s);
  window.move(0, 0);
  window.activateWindow();
  QTest::qWait(kShown);
  const auto page = [&window](const char* name) {
    return window.findChild<QWidget*>(QString::fromLatin1(name));
  };
  hand.willPress(u"No"_s);
  hand.willChoose(drive + u"/Runtime/Libraries/Characters/Tilda/tilda2.cr2"_s);
  hand.click(u"PictureSecFile"_s);
  QTest::qWait(kShown);
  QWidget* left = page("RichTextBox1");
  left->setFocus();
  for (int i = 0; i < 14; ++i) QTest::keyClick(left, Qt::Key_Down);
  QTest::qWait(kShown);
  take(u"editor"_s, window);
  hand.click(u"PictureFind"_s);
  QWidget* find = window.findChild<QComboBox*>(u"ComboFind"_s)->lineEdit();
  QTest::keyClicks(find, u"head:1"_s);
  QTest::keyClick(find, Qt::Key_Return);
  left->setFocus();
  QTest::keyClick(left, Qt::Key_Down);
  QTest::keyClick(left, Qt::Key_End);
  QTest::qWait(2 * kShown);
  chooseTheme(u"dark"_s);
  take(u"editor-dark"_s, window);
  chooseTheme(u"light"_s);
  window.close();
  QTest::qWait(kShown);
}

}  // namespace norvik::desktop
