#include "desktop/install_pictures.h"

#include "desktop/bind/list_view.h"
#include "desktop/words.h"
#include "support/zip_bytes.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QtTest>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;

void write(const QString& path, const QByteArray& bytes) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
    giveUp("cannot write " + path.toStdString());
  }
}

/// A figure waits to be installed, with a few files that it brings along.
void stage(const text::Disk& disk, const std::string& folder, const QString& drive) {
  const QString staging = hostName(disk.hostPath(folder)) + u'/';
  QFile sample(drive + u"/Runtime/Libraries/Characters/Tilda/tilda.cr2"_s);
  if (!sample.open(QIODevice::ReadOnly)) giveUp("no sample figure");
  write(staging + u"anna.cr2"_s, sample.readAll().replace("Tilda:tilda", "Anna:anna"));
  write(staging + u"anna.rsr"_s, "picture");
  write(staging + u"body.obj"_s, "v 0 0 0\r\n");
  write(staging + u"skin.bmp"_s, "picture");
  write(staging + u"LIPS.TIF"_s, "picture");
  write(staging + u"readme.txt"_s, "Hello");
}

/// A zip file whose figure lies inside folders, and what the window offers about it.
void takeFoldedFigure(Program& program, Operator& hand, const QString& drive,
                      const std::function<void()>& take) {
  front::Session& session = program.session();
  const std::string zip = tests::zipBytes(
      {{"Runtime/Libraries/Characters/Anna/anna.cr2", "{\r\n}\r\n"}, {"readme.txt", "Hello"}});
  write(drive + u"/anna.zip"_s, QByteArray::fromStdString(zip));
  session.settings.set("Startup", "WZLoc", "");
  hand.willChoose(drive + u"/anna.zip"_s);
  hand.willLook([](QWidget&) {});
  hand.willLook([](QWidget&) {});
  hand.willLook([&take](QWidget&) { take(); });
  hand.willPress(u"OK"_s);
  hand.menu({u"MenuInstallCR2"_s});
  const std::string staging = session.opening.inProgramFolder("\\cr2install");
  QDir(hostName(session.disk.hostPath(staging))).removeRecursively();
  QFile::remove(drive + u"/anna.zip"_s);
}

}  // namespace

void takeInstallPictures(Program& program, Operator& hand, const QString& drive,
                         const std::function<void(const QString& theme)>& chooseTheme,
                         const std::function<void(const QString& name, QWidget* window)>& take) {
  front::Session& session = program.session();
  takeFoldedFigure(program, hand, drive, [&] {
    QWidget* const box = QApplication::activeModalWidget();
    take(u"install-flat"_s, box);
    chooseTheme(u"dark"_s);
    take(u"install-flat-dark"_s, box);
    chooseTheme(u"light"_s);
  });
  stage(session.disk, session.opening.inProgramFolder("\\cr2install"), drive);
  hand.menu({u"MenuInstallCR2"_s});
  take(u"installer"_s, nullptr);
  chooseTheme(u"dark"_s);
  take(u"installer-dark"_s, nullptr);
  chooseTheme(u"light"_s);
  QTimer::singleShot(1500, &program.mainWindow(), [&] {
    QWidget& window = hand.find(u"FormCR2Install"_s);
    window.move(0, 0);
    take(u"install-plan"_s, &window);
    chooseTheme(u"dark"_s);
    take(u"install-plan-dark"_s, &window);
    chooseTheme(u"light"_s);
    window.close();
  });
  hand.click(u"PictureInstallCR2"_s);
  hand.click(u"PictureCR2InstallCancel"_s);

  hand.menu({u"MenuCR2Tools"_s, u"menuFilesRemove"_s});
  QWidget& files = hand.find(u"FormRemoveFiles"_s);
  files.move(0, 0);
  files.findChild<ListView*>(u"ListFiles"_s)->selectAll();
  QTest::mouseClick(files.findChild<QWidget*>(u"OptionRemove"_s), Qt::LeftButton, {}, {8, 8});
  take(u"remove-files"_s, &files);
  QTest::mouseClick(files.findChild<QWidget*>(u"OptionBackup"_s), Qt::LeftButton, {}, {8, 8});
  chooseTheme(u"dark"_s);
  take(u"remove-files-dark"_s, &files);
  chooseTheme(u"light"_s);
  files.close();
  QTest::qWait(50);

  for (int number = 1; number < 13; ++number) {
    write(drive + u"/film/%1.bmp"_s.arg(number), "picture");
  }
  write(drive + u"/film/011.bmp"_s, "picture");
  session.disk.changeFolder("C:\\film");
  hand.menu({u"MenuCR2Tools"_s, u"menuRenumberFiles"_s});
  QWidget& renumber = hand.find(u"FormRenumber"_s);
  renumber.move(0, 0);
  take(u"renumber"_s, &renumber);
  chooseTheme(u"dark"_s);
  take(u"renumber-dark"_s, &renumber);
  chooseTheme(u"light"_s);
  renumber.close();
  QTest::qWait(50);
}

}  // namespace norvik::desktop
