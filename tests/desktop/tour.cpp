// norvik-tour: an operator who knows what to do, at the real window.
//
// Usage: norvik-tour copy DRIVE SETTINGS          copies a morph between the sample figures
//        norvik-tour pictures DRIVE SETTINGS OUT  takes the pictures of the guide
//        norvik-tour pose DRIVE SETTINGS OUT      takes those of the pose tools alone
//        norvik-tour phi DRIVE SETTINGS OUT       takes those of the phi tools alone
//        norvik-tour install DRIVE SETTINGS OUT   takes those of the installer alone
//        norvik-tour editor DRIVE SETTINGS OUT    takes those of the editor alone
//        norvik-tour surgery DRIVE SETTINGS OUT   takes those of the surgery on meshes alone
//        norvik-tour small DRIVE SETTINGS OUT     takes those of the small tools alone
//        norvik-tour close DRIVE SETTINGS         closes windows while a mesh spins
//        norvik-tour spin DRIVE SETTINGS COUNT    measures the frames of COUNT spinning triangles
//        norvik-tour time DRIVE SETTINGS FILE     measures the start and the opening of a file
// DRIVE is the host folder of drive C, with the sample figures in it; FILE is a system path.

#include "desktop/bind/drop_mark.h"
#include "desktop/dial_pictures.h"
#include "desktop/editor_pictures.h"
#include "desktop/install_pictures.h"
#include "desktop/link_pictures.h"
#include "desktop/material_pictures.h"
#include "desktop/operator.h"
#include "desktop/phi_pictures.h"
#include "desktop/pose_pictures.h"
#include "desktop/small_tool_pictures.h"
#include "desktop/spin_timing.h"
#include "desktop/surgery_pictures.h"
#include "desktop/window_asker.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QtTest>

#include <iostream>

namespace {

using Qt::StringLiterals::operator""_s;
namespace desktop = norvik::desktop;

const QString kCharacters = u"/Runtime/Libraries/Characters/Tilda/"_s;

/// Copies the morph LongHead of the second figure's head into the first one.
void copyMorph(desktop::Operator& hand, const QString& drive) {
  hand.willChoose(drive + kCharacters + u"tilda.cr2"_s);
  hand.shortcut(Qt::Key_O, Qt::ControlModifier);
  hand.willChoose(drive + kCharacters + u"tilda2.cr2"_s);
  hand.click(u"LabelOpenSource"_s);
  hand.clickItem(u"ListActors"_s, u"head:1"_s);
  hand.click(u"PictureViewChannels"_s);
  hand.clickItem(u"ListChannels"_s, u"LongHead"_s);
  hand.willPress(u"Yes"_s);
  hand.willChoose(drive + kCharacters + u"tilda3.cr2"_s);
  hand.click(u"PictureCopyToDest"_s);
  hand.menu({u"menuFile"_s, u"MenuFileExit"_s});
}

class Photographer {
 public:
  Photographer(desktop::Program& program, QString folder)
      : program_(program), folder_(std::move(folder)) {}

  /// The window with whatever lies over it, as it is on the screen.
  void take(const QString& name) const { take(name, program_.mainWindow()); }
  void take(const QString& name, const QWidget& window) const {
    QTest::qWait(150);
    const QRect place = window.frameGeometry();
    QApplication::primaryScreen()
        ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
        .save(folder_ + u'/' + name + u".png"_s, "PNG", 0);
  }

 private:
  desktop::Program& program_;
  QString folder_;
};

void chooseTheme(desktop::Program& program, const QString& name) {
  program.mainWindow().findChild<QAction*>(u"Theme."_s + name)->trigger();
}

/// The mesh workshop in all its views. What is done while the mesh spins is done by a timer: the
/// key that starts the spin comes back when it is over.
void takeWorkshopPictures(desktop::Program& program, desktop::Operator& hand,
                          const Photographer& camera) {
  hand.click(u"PictureOBJView"_s);
  QWidget& window = hand.find(u"FormOBJ"_s);
  window.move(0, 0);
  camera.take(u"workshop"_s, window);
  hand.click(u"OptionColorGroups"_s);
  hand.click(u"LabelView"_s);
  camera.take(u"workshop-front"_s, window);
  hand.click(u"OptionSideView"_s);
  camera.take(u"workshop-side"_s, window);
  hand.click(u"OptionTopView"_s);
  camera.take(u"workshop-top"_s, window);

  QWidget& views = hand.find(u"ViewStack"_s);
  QTest::keyClick(&views, Qt::Key_Space);
  QTimer::singleShot(1500, &window, [&] {
    camera.take(u"workshop-spin"_s, window);
    QTest::keyClick(&views, Qt::Key_Space);
  });
  QTest::keyClick(&views, Qt::Key_Space);

  hand.click(u"OptionFrontView"_s);
  hand.click(u"LabelView"_s);
  hand.click(u"LabelHotKeys"_s);
  chooseTheme(program, u"dark"_s);
  camera.take(u"workshop-dark"_s, window);
  hand.click(u"LabelBoss"_s);
  camera.take(u"workshop-boss"_s, window);
  hand.click(u"LabelPlay"_s);
  chooseTheme(program, u"light"_s);
  window.close();
  QTest::qWait(50);
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
void takeHistory(desktop::Program& program, desktop::Operator& hand, const Photographer& camera,
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
void takeChannelPictures(desktop::Program& program, desktop::Operator& hand,
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
  chooseTheme(program, u"dark"_s);
  camera.take(u"channels-rename-dark"_s);
  chooseTheme(program, u"light"_s);
  QTest::keyClick(&hand.find(u"TextMorphRename"_s), Qt::Key_Escape);

  hand.click(u"PictureTrash"_s);
  {
    const desktop::DropMarks marks;
    camera.take(u"channels-trash"_s);
  }
  hand.click(u"PictureTrash"_s);
  hand.click(u"PictureViewChannels"_s);
}

void takeInstaller(desktop::Program& program, desktop::Operator& hand, const QString& drive,
                   const Photographer& camera) {
  desktop::takeInstallPictures(
      program, hand, drive, [&](const QString& name) { chooseTheme(program, name); },
      [&](const QString& name, QWidget* window) {
        camera.take(name, window == nullptr ? program.mainWindow() : *window);
      });
}

void takePhi(desktop::Program& program, desktop::Operator& hand, const QString& drive,
             const Photographer& camera) {
  desktop::takePhiPictures(
      hand, drive, [&](const QString& name) { chooseTheme(program, name); },
      [&](const QString& name, const QWidget& window) { camera.take(name, window); });
}

void takeEditor(desktop::Program& program, desktop::Operator& hand, const QString& drive,
                const Photographer& camera) {
  desktop::takeEditorPictures(
      hand, drive, [&](const QString& name) { chooseTheme(program, name); },
      [&](const QString& name, const QWidget& window) { camera.take(name, window); });
}

/// With a figure open, whose mesh is worked on.
void takeSurgery(desktop::Program& program, desktop::Operator& hand, const QString& drive,
                 const Photographer& camera) {
  desktop::takeSurgeryPictures(
      hand, drive, [&](const QString& name) { chooseTheme(program, name); },
      [&](const QString& name, const QWidget& window) { camera.take(name, window); });
}

void takeSmallTools(desktop::Program& program, desktop::Operator& hand, const QString& drive,
                    const Photographer& camera) {
  desktop::takeSmallToolPictures(
      program, hand, drive, [&](const QString& name) { chooseTheme(program, name); },
      [&](const QString& name, const QWidget& window) { camera.take(name, window); });
}

void takePictures(desktop::Program& program, desktop::Operator& hand, const QString& drive,
                  const QString& folder) {
  const Photographer camera(program, folder);
  camera.take(u"empty"_s);

  hand.willChoose(drive + kCharacters + u"tilda.cr2"_s);
  hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
  camera.take(u"figure"_s);
  hand.hover(u"TextMainTex"_s);
  camera.take(u"textures"_s);
  hand.clickItem(u"ListAllTexMaps"_s, u"tilda"_s);

  takeChannelPictures(program, hand, camera);
  desktop::takeDialPictures(hand, [&](const QString& name) { camera.take(name); });

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
  takeHistory(program, hand, camera, drive + kCharacters + u"tilda.cr2"_s);

  chooseTheme(program, u"dark"_s);
  camera.take(u"dark"_s);
  hand.menu({u"MenuCR2Tools"_s});
  camera.take(u"menu"_s);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  QTest::keyClick(static_cast<QWidget*>(program.mainWindow().menuBar()), Qt::Key_Escape);
  chooseTheme(program, u"light"_s);

  desktop::takeLinkPictures(
      hand, [&](const QString& name) { chooseTheme(program, name); },
      [&](const QString& name, const QWidget& window) { camera.take(name, window); });

  hand.menu({u"MenuCR2Tools"_s, u"MenuBrack"_s});
  QTest::qWait(1700);
  camera.take(u"brackets"_s);
  hand.click(u"PictureBrktsOK"_s);

  hand.type(u"TextMainBump"_s, u"C:\\Runtime\\textures\\skin.bmp"_s);
  hand.doubleClick(u"TextMainBump"_s);
  camera.take(u"edited"_s);
  hand.menu({u"menuFile"_s, u"menuRecent"_s});
  camera.take(u"recent"_s);
  while (QApplication::activePopupWidget() != nullptr) QApplication::activePopupWidget()->close();

  hand.willPress(u"No"_s);
  hand.willChoose(drive + u"/Runtime/Geometries/Tilda/tilda.obj"_s);
  hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
  camera.take(u"mesh"_s);
  chooseTheme(program, u"dark"_s);
  camera.take(u"mesh-dark"_s);
  chooseTheme(program, u"light"_s);
  takeWorkshopPictures(program, hand, camera);
  desktop::takeMaterialPictures(
      hand, drive + kCharacters + u"tilda.cr2"_s, drive,
      [&](const QString& name) { chooseTheme(program, name); },
      [&](const QString& name, QWidget* window) {
        camera.take(name, window == nullptr ? program.mainWindow() : *window);
      });
  hand.willChoose(drive + kCharacters + u"tilda.cr2"_s);
  hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
  desktop::takePosePictures(
      hand, drive, [&](const QString& name, const QWidget& window) { camera.take(name, window); });
  takePhi(program, hand, drive, camera);
  hand.willChoose(drive + kCharacters + u"tilda.cr2"_s);
  hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
  takeInstaller(program, hand, drive, camera);
  takeEditor(program, hand, drive, camera);
  hand.willChoose(drive + kCharacters + u"tilda.cr2"_s);
  hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
  takeSurgery(program, hand, drive, camera);
  takeSmallTools(program, hand, drive, camera);
  chooseTheme(program, u"system"_s);
  hand.menu({u"menuFile"_s, u"MenuFileExit"_s});
}

/// Spins a mesh, closes the workshop in the middle of it, spins again, and leaves the program in
/// the middle of that.
void closeWhileItSpins(desktop::Program& program, desktop::Operator& hand, const QString& drive) {
  constexpr int kMeanwhile = 300;  // milliseconds
  hand.willChoose(drive + u"/Runtime/Geometries/Tilda/tilda.obj"_s);
  hand.shortcut(Qt::Key_O, Qt::ControlModifier);
  const auto spin = [&](const std::function<void()>& meanwhile) {
    hand.click(u"PictureOBJView"_s);
    hand.click(u"LabelView"_s);
    QWidget& views = hand.find(u"ViewStack"_s);
    QTest::keyClick(&views, Qt::Key_Space);
    QTimer::singleShot(kMeanwhile, &views, meanwhile);
    QTest::keyClick(&views, Qt::Key_Space);
  };
  spin([&] { hand.find(u"FormOBJ"_s).close(); });
  if (program.session().findForm("FormOBJ")->loaded())
    desktop::giveUp("the workshop is still there");
  std::cout << "the workshop is closed\n";
  spin([&] { program.mainWindow().close(); });
  const auto gone = [&] { return !program.session().opening.loaded(); };
  if (!QTest::qWaitFor(gone, 10000)) desktop::giveUp("the program is still there");
  std::cout << "the program is closed\n";
}

/// The resident memory of this process in megabytes.
double megabytes() {
  QFile status(u"/proc/self/status"_s);
  if (!status.open(QIODevice::ReadOnly)) return 0;
  const QString text = QString::fromLatin1(status.readAll());
  constexpr double kKilo = 1024;
  return text.section(u"VmRSS:"_s, 1).section(u"kB"_s, 0, 0).trimmed().toDouble() / kKilo;
}

void measure(desktop::Program& program, const std::string& file, qint64 started) {
  std::cout << "start: " << started << " ms, " << megabytes() << " MB\n";
  for (int i = 0; i < 3; ++i) {
    QElapsedTimer clock;
    clock.start();
    program.frontEnd().withChosen(
        file, [&] { program.dispatcher().raise(program.session().opening.MenuFileOpen.clicked); });
    std::cout << "open: " << clock.elapsed() << " ms, " << megabytes() << " MB\n";
  }
}

}  // namespace

int main(int count, char** arguments) {
  QElapsedTimer clock;
  clock.start();
  QApplication application(count, arguments);
  const QStringList words = QApplication::arguments();
  if (words.size() < 4) return 2;
  desktop::Options options;
  options.drives = {{'C', QDir(words[2]).absolutePath().toStdString()}};
  options.settings = words[3].toStdString();
  desktop::WindowAsker asker;
  desktop::Program program(options, asker);
  desktop::Operator hand(program);

  qint64 started = 0;
  QTimer::singleShot(0, &application, [&] {
    program.start();
    QCoreApplication::processEvents();
    started = clock.elapsed();
  });
  constexpr int kStarted = 300;  // milliseconds
  QTimer::singleShot(kStarted, &application, [&] {
    program.mainWindow().activateWindow();
    if (!QTest::qWaitForWindowActive(&program.mainWindow(), 5000)) {
      desktop::giveUp("the window does not become active");
    }
    const QString drive = QDir(words[2]).absolutePath();
    if (words[1] == u"copy"_s) copyMorph(hand, drive);
    if (words[1] == u"time"_s) {
      measure(program, words.value(4).toStdString(), started);
      QApplication::quit();
    }
    if (words[1] == u"pose"_s) {
      const Photographer camera(program, words.value(4));
      hand.willChoose(drive + kCharacters + u"tilda.cr2"_s);
      hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
      desktop::takePosePictures(hand, drive, [&](const QString& name, const QWidget& window) {
        camera.take(name, window);
      });
      QApplication::quit();
    }
    if (words[1] == u"phi"_s) {
      hand.willChoose(drive + kCharacters + u"tilda.cr2"_s);
      hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
      takePhi(program, hand, drive, Photographer(program, words.value(4)));
      QApplication::quit();
    }
    if (words[1] == u"install"_s) {
      hand.willChoose(drive + kCharacters + u"tilda.cr2"_s);
      hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
      takeInstaller(program, hand, drive, Photographer(program, words.value(4)));
      QApplication::quit();
    }
    if (words[1] == u"editor"_s) {
      hand.willChoose(drive + kCharacters + u"tilda.cr2"_s);
      hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
      takeEditor(program, hand, drive, Photographer(program, words.value(4)));
      QApplication::quit();
    }
    if (words[1] == u"surgery"_s) {
      hand.willChoose(drive + kCharacters + u"tilda.cr2"_s);
      hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
      takeSurgery(program, hand, drive, Photographer(program, words.value(4)));
      QApplication::quit();
    }
    if (words[1] == u"small"_s) {
      takeSmallTools(program, hand, drive, Photographer(program, words.value(4)));
      QApplication::quit();
    }
    if (words[1] == u"close"_s) closeWhileItSpins(program, hand, drive);
    if (words[1] == u"spin"_s) {
      desktop::timeSpin(words.value(4).toInt());
      QApplication::quit();
    }
    if (words[1] == u"pictures"_s) takePictures(program, hand, drive, words.value(4));
  });
  // The closing animation can be skipped with a key.
  QTimer skip;
  QObject::connect(&skip, &QTimer::timeout, &application, [&] {
    auto* curtain = program.mainWindow().findChild<QWidget*>(u"PictureTile"_s);
    if (curtain != nullptr) QTest::keyClick(curtain, Qt::Key_Space);
  });
  skip.start(50);
  const int end = QApplication::exec();
  for (const QString& box : hand.boxes()) std::cout << box.toStdString() << '\n';
  return end;
}
