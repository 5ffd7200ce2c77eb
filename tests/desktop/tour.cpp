// norvik-tour: an operator who knows what to do, at the real window.
//
// Usage: norvik-tour copy DRIVE SETTINGS          copies a morph between the sample figures
//        norvik-tour pictures DRIVE SETTINGS OUT  takes the pictures of the guide
//        norvik-tour SECTION DRIVE SETTINGS OUT   takes those of one section: window, workshop,
//                                                 material, pose, phi, install, editor, surgery,
//                                                 small
//        norvik-tour close DRIVE SETTINGS         closes windows while a mesh spins
//        norvik-tour spin DRIVE SETTINGS COUNT    measures the frames of COUNT spinning triangles
//        norvik-tour time DRIVE SETTINGS FILE     measures the start and the opening of a file
// DRIVE is the host folder of drive C, with the sample figures in it; FILE is a system path.

#include "desktop/guide_pictures.h"
#include "desktop/operator.h"
#include "desktop/spin_timing.h"
#include "desktop/window_asker.h"

#include <QApplication>
#include <QDir>
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
    if (desktop::pictureSections().contains(words[1])) {
      desktop::takeSection(words[1], program, hand, drive, words.value(4));
      QApplication::quit();
    }
    if (words[1] == u"close"_s) closeWhileItSpins(program, hand, drive);
    if (words[1] == u"spin"_s) {
      desktop::timeSpin(words.value(4).toInt());
      QApplication::quit();
    }
    if (words[1] == u"pictures"_s) {
      desktop::takeAllPictures(program, hand, drive, words.value(4));
    }
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
