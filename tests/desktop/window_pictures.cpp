#include "desktop/window_pictures.h"

#include "desktop/bind/drop_mark.h"
#include "desktop/dial_pictures.h"
#include "desktop/link_pictures.h"

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;
using ChooseTheme = std::function<void(const QString&)>;

constexpr int kShown = 50;  // milliseconds
const QString kCharacters = u"/Runtime/Libraries/Characters/Tilda/"_s;

void openFigure(Operator& hand, const QString& figure) {
  hand.willChoose(figure);
  hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
}

/// What the question's further button shows; it answers nothing.
void takeChanges(const QWidget& box, const Photographer& camera) {
  QTimer::singleShot(300, [&camera] {
    QWidget* changes = QApplication::activeModalWidget();
    changes->move(0, 0);
    camera.take(u"changes"_s, *changes);
    changes->close();
  });
  QTest::mouseClick(box.findChild<QPushButton*>(u"ShowChanges"_s), Qt::LeftButton);
}

/// A figure is replaced, and replaced back.
void takeHistory(Program& program, Operator& hand, const Photographer& camera,
                 const QString& figure) {
  hand.willPress(u"Yes"_s);
  hand.willChoose(figure);
  hand.willPress(u"Yes"_s);  // the dialog asks as well
  hand.click(u"PictureCopyToDest"_s);
  program.mainWindow().findChild<QAction*>(u"History"_s)->trigger();
  auto* window = program.mainWindow().findChild<QWidget*>(u"HistoryWindow"_s);
  window->move(60, 200);
  auto* list = window->findChild<QTreeWidget*>(u"HistoryList"_s);
  list->setCurrentItem(list->topLevelItem(0));
  camera.take(u"history"_s, *window);
  window->close();
  QTest::qWait(50);
  hand.willPress(u"Yes"_s);
  program.mainWindow().findChild<QAction*>(u"UndoLast"_s)->trigger();
}

/// The removals and the rename, up to the point where they would ask.
void takeChannelPictures(Program& program, Operator& hand, const ChooseTheme& chooseTheme,
                         const Photographer& camera) {
  hand.clickItem(u"ListActors"_s, u"head:1"_s);
  hand.click(u"PictureViewChannels"_s);
  program.mainWindow().findChild<QAction*>(u"FilterList"_s)->trigger();
  QWidget& filter = hand.find(u"Filter.ListChannels"_s);
  QTest::keyClicks(&filter, u"head"_s);
  camera.take(u"channels-filter"_s);
  QTest::keyClick(&filter, Qt::Key_Escape);

  hand.click(u"PictureRenameMorph"_s);
  hand.click(u"OptionChannelRename"_s);
  hand.clickItem(u"ListChannels"_s, u"LongHead"_s);
  hand.click(u"RenameNext"_s);
  QTest::keyClicks(&hand.find(u"TextMorphRename"_s), u"TallHead"_s);
  camera.take(u"channels-rename"_s);
  chooseTheme(u"dark"_s);
  camera.take(u"channels-rename-dark"_s);
  chooseTheme(u"light"_s);
  QTest::keyClick(&hand.find(u"TextMorphRename"_s), Qt::Key_Escape);

  hand.click(u"PictureTrash"_s);
  {
    const DropMarks marks;
    camera.take(u"channels-trash"_s);
  }
  hand.click(u"PictureTrash"_s);
  hand.click(u"PictureViewChannels"_s);
}

/// The guide, where it begins.
void takeGuide(Program& program, Operator& hand, const ChooseTheme& chooseTheme,
               const Photographer& camera) {
  hand.clickItem(u"ListMaterials"_s, u"skin"_s);
  QTest::keyClick(&hand.find(u"ListMaterials"_s), Qt::Key_F1);
  auto* guide = program.mainWindow().findChild<QWidget*>(u"GuideWindow"_s);
  guide->move(0, 0);
  QTest::mouseClick(guide->findChild<QPushButton*>(u"GuideContents"_s), Qt::LeftButton);
  camera.take(u"guide"_s, *guide);
  chooseTheme(u"dark"_s);
  camera.take(u"guide-dark"_s, *guide);
  chooseTheme(u"light"_s);
  guide->close();
  QTest::qWait(kShown);
}

/// Two figures, a morph of the second one, and the question whether its copy is saved.
void takeCopy(Program& program, Operator& hand, const QString& drive, const Photographer& camera) {
  hand.willChoose(drive + kCharacters + u"tilda2.cr2"_s);
  hand.click(u"LabelOpenSource"_s);
  hand.clickItem(u"ListActors"_s, u"head:1"_s);
  hand.click(u"PictureViewChannels"_s);
  hand.clickItem(u"ListChannels"_s, u"LongHead"_s);
  camera.take(u"part"_s);
  hand.willLook([&](QWidget& box) {
    box.move(program.mainWindow().geometry().center() - box.rect().center());
    camera.take(u"question"_s);
    takeChanges(box, camera);
  });
  hand.willPress(u"No"_s);
  hand.click(u"PictureCopyToDest"_s);
}

void takeDarkMenu(Program& program, Operator& hand, const ChooseTheme& chooseTheme,
                  const Photographer& camera) {
  chooseTheme(u"dark"_s);
  camera.take(u"dark"_s);
  hand.menu({u"MenuCR2Tools"_s});
  camera.take(u"menu"_s);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  QTest::keyClick(static_cast<QWidget*>(program.mainWindow().menuBar()), Qt::Key_Escape);
  chooseTheme(u"light"_s);
}

/// The brackets, an edited path, and the recent files; the edit is dropped.
void takePaths(Operator& hand, const QString& figure, const Photographer& camera) {
  constexpr int kPinned = 1700;  // milliseconds until the pin is there
  hand.menu({u"MenuCR2Tools"_s, u"MenuBrack"_s});
  QTest::qWait(kPinned);
  camera.take(u"brackets"_s);
  hand.click(u"PictureBrktsOK"_s);

  hand.type(u"TextMainBump"_s, u"C:\\Runtime\\textures\\skin.bmp"_s);
  hand.doubleClick(u"TextMainBump"_s);
  camera.take(u"edited"_s);
  hand.menu({u"menuFile"_s, u"menuRecent"_s});
  camera.take(u"recent"_s);
  while (QApplication::activePopupWidget() != nullptr) QApplication::activePopupWidget()->close();
  hand.willPress(u"No"_s);
  openFigure(hand, figure);
}

}  // namespace

void takeWindowPictures(Program& program, Operator& hand, const QString& drive,
                        const ChooseTheme& chooseTheme, const Photographer& camera) {
  const QString figure = drive + kCharacters + u"tilda.cr2"_s;
  camera.take(u"empty"_s);
  openFigure(hand, figure);
  camera.take(u"figure"_s);
  hand.hover(u"TextMainTex"_s);
  camera.take(u"textures"_s);
  hand.clickItem(u"ListAllTexMaps"_s, u"tilda"_s);
  takeGuide(program, hand, chooseTheme, camera);
  takeChannelPictures(program, hand, chooseTheme, camera);
  takeDialPictures(hand, [&](const QString& name) { camera.take(name); });

  // Nothing of the last tools is on view any more.
  openFigure(hand, figure);
  takeCopy(program, hand, drive, camera);
  takeHistory(program, hand, camera, figure);
  takeDarkMenu(program, hand, chooseTheme, camera);
  takeLinkPictures(hand, chooseTheme,
                   [&](const QString& name, const QWidget& window) { camera.take(name, window); });
  takePaths(hand, figure, camera);
}

}  // namespace norvik::desktop
