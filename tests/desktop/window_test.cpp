// The main window at work on the sample.

#include "desktop/bind/list_view.h"
#include "desktop/program_bench.h"
#include "desktop/window/place.h"

#include <QAction>
#include <QLineEdit>
#include <QProgressBar>
#include <QScreen>
#include <QScrollBar>
#include <QToolButton>

#include <algorithm>
#include <set>

namespace norvik::desktop {

namespace {

class WindowTest : public ProgramBench {
 protected:
  WindowTest() { start(kTilda + "tilda.cr2"); }

  void choose(front::MenuEntry& entry) { dispatcher().raise(entry.clicked); }
  void open(const std::string& file) {
    program_->frontEnd().withChosen(file, [&] { choose(opening().MenuFileOpen); });
  }
};

TEST_F(WindowTest, APathThatWasTypedSaysThatEnterTakesIt) {
  auto& box = find<QLineEdit>("TextMainTex");
  auto& hint = find<QLabel>("HintOfTextMainTex");
  EXPECT_FALSE(hint.isVisible());
  box.setFocus();
  QTest::keyClicks(&box, "x");
  EXPECT_TRUE(hint.isVisible());
  EXPECT_EQ(hint.text(), "Enter takes it");
  QTest::keyClick(&box, Qt::Key_Backspace);
  EXPECT_FALSE(hint.isVisible());
  QTest::keyClicks(&box, "y");
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_FALSE(hint.isVisible());
  EXPECT_TRUE(opening().PathsEdited);
}

TEST_F(WindowTest, ASaveSaysWhatItLeftOut) {
  auto& box = find<QLineEdit>("TextMainBump");
  box.setFocus();
  QTest::keyClicks(&box, "x");
  choose(opening().MenuFileSave);
  const QString said = find<QLabel>("StatusText").text();
  EXPECT_TRUE(said.contains("Main Bump")) << said.toStdString();
  EXPECT_TRUE(said.contains("Enter")) << said.toStdString();
}

TEST_F(WindowTest, TheProgressGoesWhenAPassIsOver) {
  auto& bar = find<QProgressBar>("Progress");
  dispatcher().run([&] {
    window().setProgress(1 << 20, 64 << 20);
    EXPECT_TRUE(bar.isVisible());
  });
  EXPECT_FALSE(bar.isVisible());
  dispatcher().run([&] {
    window().setProgress(1 << 20, 64 << 20);
    throw text::FileError(text::ErrorNumber::diskFull);
  });
  EXPECT_FALSE(bar.isVisible());
}

TEST_F(WindowTest, ListsStartAtTheirTopAfterAnOpen) {
  auto& actors = find<ListView>("ListActors");
  auto& channels = find<ListView>("ListChannels");
  actors.verticalScrollBar()->setValue(5);
  channels.verticalScrollBar()->setValue(9);
  ASSERT_GT(channels.verticalScrollBar()->value(), 0);
  open(kTilda + "tilda.cr2");
  EXPECT_EQ(actors.verticalScrollBar()->value(), 0);
  EXPECT_EQ(channels.verticalScrollBar()->value(), 0);
  // A dialog that is left changes nothing.
  channels.verticalScrollBar()->setValue(9);
  choose(opening().MenuFileOpen);
  EXPECT_EQ(channels.verticalScrollBar()->value(), 9);
}

TEST_F(WindowTest, ThePanesHaveTitlesAndTheSizeHasATip) {
  EXPECT_EQ(find<QLabel>("DestinationTitle").text(), "Destination");
  EXPECT_EQ(find<QLabel>("SourceTitle").text(), "Source");
  EXPECT_TRUE(find<QLabel>("SourceTitle").isVisible());
  opening().LabelFileSize.setCaption(" 3145728 bytes");
  dispatcher().sync();
  EXPECT_EQ(find<QLabel>("LabelFileSize").toolTip(), "3.00 MiB");
}

TEST_F(WindowTest, F11IsAFullScreenAndBack) {
  choose(opening().menuScreenRes);
  EXPECT_TRUE(window().isFullScreen());
  choose(opening().menuScreenRes);
  EXPECT_FALSE(window().isFullScreen());
  choose(opening().menuScreenRes);
  ASSERT_TRUE(window().isFullScreen());
  QTest::keyClick(&window(), Qt::Key_Escape);
  EXPECT_FALSE(window().isFullScreen());
}

TEST_F(WindowTest, AWindowComesUpWholeOnTheScreenThatItIsOn) {
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect room = screen->availableGeometry();
    window().resize(4000, 3000);
    window().move(room.center() - QPoint(2000, 1500));
    QTest::qWait(20);
    keepOnScreen(window());
    QTest::qWait(20);
    EXPECT_TRUE(room.contains(window().frameGeometry())) << screen->name().toStdString();
    const int inside = std::min(room.width(), room.height()) / 4;
    window().resize(inside, inside);
    window().move(room.topLeft() - QPoint(inside / 4, inside / 4));
    QTest::qWait(20);
    keepOnScreen(window());
    QTest::qWait(20);
    EXPECT_TRUE(room.contains(window().frameGeometry())) << screen->name().toStdString();
  }
}

TEST_F(WindowTest, NoRowOfThePathsCoversAnotherOnASmallScreen) {
  window().setMinimumSize(1, 1);
  window().resize(640, 450);
  QTest::qWait(20);
  const QRect props = find<QWidget>("ListPropObj").geometry();
  EXPECT_GT(props.top(), find<QWidget>("TextMainOBJ").geometry().bottom());
  EXPECT_LT(props.bottom(), find<QWidget>("TextMainTex").geometry().top());
  EXPECT_GE(find<QWidget>("TextMainTex").height(),
            find<QWidget>("TextMainTex").sizeHint().height());
}

TEST_F(WindowTest, TheFocusIsSeenOnWhateverTakesIt) {
  window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
  std::set<QString> seen;
  find<QWidget>("TextMainOBJ").setFocus();
  for (int i = 0; i < 60; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QWidget* const now = QApplication::focusWidget();
    ASSERT_NE(now, nullptr);
    if (qobject_cast<QLineEdit*>(now) != nullptr) continue;
    const auto* ring = window().findChild<QWidget*>("FocusRing");
    ASSERT_NE(ring, nullptr) << now->objectName().toStdString();
    EXPECT_TRUE(ring->isVisible());
    const QRect around(now->mapTo(&window(), QPoint(0, 0)), now->size());
    EXPECT_TRUE(ring->geometry().contains(around)) << now->objectName().toStdString();
    seen.insert(now->objectName());
  }
  EXPECT_TRUE(seen.contains("LabelMainTex")) << "the names of the references take the keys";
  EXPECT_TRUE(seen.contains("ListActors"));
  EXPECT_TRUE(seen.contains("PictureViewChannels"));
}

TEST_F(WindowTest, TheBracketCardTakesTheKeys) {
  window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
  for (const auto key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
    choose(opening().MenuBrack);
    ASSERT_TRUE(opening().PictureBrktsOK.visible());
    EXPECT_EQ(QApplication::focusWidget(), &find<QWidget>("PictureBrktsOK"));
    QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_FALSE(opening().PictureBrktsOK.visible());
    EXPECT_TRUE(opening().menuFile.enabled());
  }
}

TEST_F(WindowTest, TheClosingAnimationCanBeTurnedOff) {
  auto* entry = window().findChild<QAction*>("ClosingAnimation");
  ASSERT_NE(entry, nullptr);
  EXPECT_TRUE(entry->isChecked());
  entry->trigger();
  EXPECT_EQ(session().settings.get(kWindowSection, kClosingAnimationKey, ""), "off");
  EXPECT_FALSE(window().drawTile(0, 0));
}

TEST_F(WindowTest, TheClosingAnimationIsOffWhereTheDesktopDoesWithoutAny) {
  const QByteArray before = qgetenv("XDG_CONFIG_HOME");
  std::ofstream(folder_.path() + "/kdeglobals") << "[KDE]\nAnimationDurationFactor=0\n";
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder_.path()));
  EXPECT_FALSE(window().drawTile(0, 0));
  before.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before);
}

}  // namespace

}  // namespace norvik::desktop
