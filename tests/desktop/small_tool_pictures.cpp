#include "desktop/small_tool_pictures.h"

#include "dials/renamer_form.h"

#include <QApplication>
#include <QCursor>
#include <QtTest>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;
using ChooseTheme = std::function<void(const QString& theme)>;
using Take = std::function<void(const QString& name, QWidget& window)>;

void takeBothThemes(const QString& name, QWidget& window, const ChooseTheme& chooseTheme,
                    const Take& take) {
  window.move(60, 60);
  take(name, window);
  chooseTheme(u"dark"_s);
  take(name + u"-dark"_s, window);
  chooseTheme(u"light"_s);
}

/// Picks a file as a click in the list of files does.
void pick(Program& program, const std::string& folder, const std::string& file) {
  auto& form = dynamic_cast<dials::Renamer&>(*program.session().findForm("Renamer"));
  program.dispatcher().run([&] {
    form.Dir1.setPath(folder);
    form.Dir1.changed.raise();
    for (int i = 0; i < form.File1.count(); ++i) {
      if (form.File1.item(i) == file) form.File1.choose(i);
    }
    form.File1.clicked.raise();
  });
}

void takeRenamer(Program& program, Operator& hand, const ChooseTheme& chooseTheme,
                 const Take& take) {
  hand.menu({u"MenuCR2Tools"_s, u"MenuDialRen"_s});
  QWidget& window = hand.find(u"Renamer"_s);
  pick(program, "C:\\Runtime\\Libraries\\Characters\\Tilda", "tilda2.cr2");
  hand.click(u"LabelFriendly"_s);
  takeBothThemes(u"renamer"_s, window, chooseTheme, take);
  hand.click(u"Rename"_s);
  hand.click(u"LabelGetSR"_s);
  take(u"renamer-back"_s, window);
  window.close();
  QTest::qWait(50);
}

void takeViewer(Operator& hand, const ChooseTheme& chooseTheme, const Take& take) {
  hand.hover(u"TextMainTex"_s);
  hand.clickItem(u"ListAllTexMaps"_s, u"tilda.bmp"_s);
  hand.click(u"PictureMapViewer"_s);
  QWidget& window = hand.find(u"FormViewer"_s);
  QTest::keyClick(&hand.find(u"Map"_s), Qt::Key_0);
  takeBothThemes(u"map-viewer"_s, window, chooseTheme, take);
  window.close();
  QTest::qWait(50);
}

void takeGraphPaper(Operator& hand, const ChooseTheme& chooseTheme, const Take& take) {
  hand.menu({u"MenuCR2Tools"_s, u"MenuScale"_s});
  QWidget& window = hand.find(u"FormScale"_s);
  hand.type(u"TextHorizontal"_s, u"320"_s);
  QTest::keyClick(&hand.find(u"TextHorizontal"_s), Qt::Key_Return);
  hand.type(u"TextVertical"_s, u"240"_s);
  take(u"graph-paper-size"_s, window);
  QTest::keyClick(&hand.find(u"TextVertical"_s), Qt::Key_Return);
  takeBothThemes(u"graph-paper"_s, window, chooseTheme, take);
  window.close();
  QTest::qWait(50);
}

void takeLauncher(Operator& hand, const ChooseTheme& chooseTheme, const Take& take) {
  hand.menu({u"MenuLauncher"_s});
  QWidget& window = hand.find(u"FormLaunch"_s);
  takeBothThemes(u"launcher"_s, window, chooseTheme, take);
  window.close();
  QTest::qWait(50);
}

void takeMagnifier(Operator& hand, const QString& drive, const ChooseTheme& chooseTheme,
                   const Take& take) {
  hand.willChoose(drive + u"/Runtime/Geometries/Tilda/tilda.obj"_s);
  hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
  hand.click(u"PictureOBJView"_s);
  QWidget& workshop = hand.find(u"FormOBJ"_s);
  workshop.move(0, 0);
  hand.click(u"OptionColorGroups"_s);
  hand.click(u"LabelView"_s);
  hand.click(u"PictureMagGlass"_s);
  QWidget& window = hand.find(u"Magnifier"_s);
  QWidget& views = hand.find(u"ViewStack"_s);
  QCursor::setPos(views.mapToGlobal(QPoint(views.width() / 2, views.height() * 2 / 5)));
  QTest::keyClick(&window, Qt::Key_F4, Qt::ControlModifier);
  QTest::qWait(200);
  window.move(760, 380);
  QTest::qWait(200);
  take(u"magnifier-window"_s, window);
  take(u"magnifier"_s, workshop);
  chooseTheme(u"dark"_s);
  take(u"magnifier-dark"_s, window);
  chooseTheme(u"light"_s);
  window.close();
  QTest::qWait(50);
  workshop.close();
  QTest::qWait(50);
}

}  // namespace

void takeSmallToolPictures(Program& program, Operator& hand, const QString& drive,
                           const ChooseTheme& chooseTheme, const Take& take) {
  hand.willChoose(drive + u"/Runtime/Libraries/Characters/Tilda/tilda.cr2"_s);
  hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
  takeRenamer(program, hand, chooseTheme, take);
  takeViewer(hand, chooseTheme, take);
  takeGraphPaper(hand, chooseTheme, take);
  takeLauncher(hand, chooseTheme, take);
  takeMagnifier(hand, drive, chooseTheme, take);
}

}  // namespace norvik::desktop
