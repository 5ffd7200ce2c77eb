// Every form of the program can be used without a mouse, read out, and seen whole on a small
// screen.

#include "desktop/form_scenes.h"
#include "desktop/keyboard_rules.h"
#include "desktop/program_bench.h"

#include <QFont>
#include <QShortcut>

#include <set>

namespace norvik::desktop {
namespace {

/// A small screen of 1024 by 768, less a title bar and a panel.
constexpr QSize kRoom(1000, 700);

std::string lines(const QStringList& faults) {
  return faults.join(QLatin1Char('\n')).toStdString();
}

class EveryForm : public ProgramBench, public testing::WithParamInterface<Scene> {
 protected:
  void open() {
    start(GetParam().file);
    GetParam().open(hand());
    QTest::qWait(50);
  }
  Hand& hand() {
    if (!hand_) hand_.emplace(*program_, asker_, folder_.path());
    return *hand_;
  }
  QWidget& scene() { return hand().window(GetParam().form); }
  void giveKeys() {
    scene().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&scene()));
  }

  /// Escape does the same wherever the keys are.
  void leaveFromEverywhere() {
    hand().load(GetParam().form);
    for (QWidget* stop : tabStops(scene())) {
      if (!scene().isVisible()) hand().load(GetParam().form);
      // An entry with an Escape of its own is left first.
      const bool leftFirst = stop->findChild<QShortcut*>() != nullptr;
      if (!stop->isVisible() || !stop->isEnabled() || leftFirst) continue;
      stop->setFocus();
      QTest::keyClick(stop, Qt::Key_Escape);
      QTest::qWait(20);
      EXPECT_FALSE(scene().isVisible()) << spokenName(*stop).toStdString();
    }
  }

 private:
  std::optional<Hand> hand_;
};

TEST_P(EveryForm, IsOnViewAndAskedNothing) {
  open();
  EXPECT_TRUE(scene().isVisible());
  EXPECT_TRUE(asker_.answers.empty());
  EXPECT_TRUE(asker_.paths.empty());
  const QByteArray folder = qgetenv("NORVIK_SCENES");
  if (folder.isEmpty()) return;
  // To look at: all scenes in a folder, on whatever screen this runs on.
  for (const char* theme : {"light", "dark"}) {
    hand().action(std::string{"Theme."} + theme);
    scene().resize(scene().size().boundedTo(kRoom));
    QTest::qWait(100);
    const QString name = QString::fromLatin1(GetParam().name);
    scene().grab().save(QString::fromLocal8Bit(folder) + u'/' + name + u'-' +
                        QString::fromLatin1(theme) + QStringLiteral(".png"));
  }
}

TEST_P(EveryForm, IsUsedWithoutAMouse) {
  open();
  giveKeys();
  EXPECT_EQ(lines(namelessControls(scene())), "");
  EXPECT_EQ(lines(sharedKeys(scene())), "");
  EXPECT_EQ(lines(picturesWithoutTip(scene())), "");
  QWidget* const keys = QApplication::focusWidget();
  EXPECT_EQ(lines(brokenTabOrder(scene())), "");
  if (keys != nullptr) keys->setFocus();
}

TEST_P(EveryForm, SaysWhatEscapeDoes) {
  open();
  giveKeys();
  const std::string_view escape = GetParam().escape;
  const auto* away = escape == kCloses || escape == kStays
                         ? &scene()
                         : scene().findChild<QWidget*>(QString::fromUtf8(
                               escape.data(), static_cast<qsizetype>(escape.size())));
  ASSERT_NE(away, nullptr);
  ASSERT_TRUE(away->isVisible());
  QWidget* keys = QApplication::focusWidget();
  QTest::keyClick(keys == nullptr ? &scene() : keys, Qt::Key_Escape);
  QTest::qWait(50);
  EXPECT_EQ(away->isVisible(), escape == kStays);
  if (escape == kCloses) leaveFromEverywhere();
}

TEST_P(EveryForm, FitsOnASmallScreen) {
  open();
  EXPECT_EQ(lines(crampedControls(scene(), kRoom)), "");
}

TEST_P(EveryForm, FitsOnASmallScreenInLargeLetters) {
  const QFont font = QApplication::font();
  QFont large = font;
  large.setPointSizeF(font.pointSizeF() * 1.5);
  QApplication::setFont(large);
  open();
  EXPECT_EQ(lines(crampedControls(scene(), kRoom)), "");
  QApplication::setFont(font);
}

INSTANTIATE_TEST_SUITE_P(Scenes, EveryForm, testing::ValuesIn(everyScene()),
                         [](const testing::TestParamInfo<Scene>& scene) {
                           return std::string{scene.param.name};
                         });

class FormTable : public ProgramBench {};

TEST_F(FormTable, HasEveryForm) {
  start("");
  std::set<std::string> inTable;
  for (const Scene& scene : everyScene()) inTable.insert(scene.form);
  std::set<std::string> forms;
  for (const front::Form* form : session().forms()) forms.insert(form->name());
  EXPECT_EQ(inTable, forms);
}

}  // namespace
}  // namespace norvik::desktop
