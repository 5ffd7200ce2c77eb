// The windows of the dial renamer and the small tools.

#include "desktop/forms/map_view.h"
#include "desktop/program_bench.h"
#include "dials/renamer_form.h"

#include <QCheckBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTreeWidget>

namespace norvik::desktop {
namespace {

class SmallToolsTest : public ProgramBench {
 protected:
  SmallToolsTest() { start(""); }

  template <typename Form>
  Form& form(const char* name) {
    return dynamic_cast<Form&>(*session().findForm(name));
  }
  std::string hostPath(const std::string& file) const { return folder_.path() + "/" + file; }
  std::string bytesOf(const std::string& file) const {
    std::ifstream in(hostPath(file), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  /// Drops files on a widget as a file manager does that would rather move them. Whether the widget
  /// takes a copy of them.
  bool drop(QWidget& onto, const QStringList& files) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& file : files) urls.append(QUrl::fromLocalFile(file));
    data.setUrls(urls);
    const Qt::DropActions both = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter({5, 5}, both, &data, Qt::LeftButton, Qt::NoModifier);
    enter.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&onto, &enter);
    if (!enter.isAccepted() || enter.dropAction() != Qt::CopyAction) return false;
    QDropEvent event({5, 5}, both, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&onto, &event);
    QTest::qWait(20);
    return true;
  }

  static constexpr const char* kLines =
      "\tname    GetStringRes(1024,2)\r\n\t\t\tname GetStringRes(1028,4)\r\nend\r\n";
};

TEST_F(SmallToolsTest, RenamerTellsWhatWillChange) {
  std::ofstream(hostPath("a.cr2"), std::ios::binary) << kLines;
  dispatcher().raise(opening().MenuDialRen.clicked);
  auto& renamer = form<dials::Renamer>("Renamer");
  dispatcher().run([&] {
    renamer.pickedFile = "C:\\a.cr2";
    renamer.Label1.setCaption("a.cr2");
  });
  find<QAbstractButton>("LabelFriendly").click();
  EXPECT_EQ(find<QLabel>("Outcome").text(), "2 lines will change:");
  const auto& preview = find<QTreeWidget>("Preview");
  ASSERT_EQ(preview.topLevelItemCount(), 2);
  EXPECT_EQ(preview.topLevelItem(1)->text(0), "2");
  EXPECT_EQ(preview.topLevelItem(1)->text(1).trimmed(), "name GetStringRes(1028,4)");
  EXPECT_EQ(preview.topLevelItem(1)->text(2).trimmed(), "name Bend");
  EXPECT_TRUE(find<QAbstractButton>("LabelFriendly").isChecked());
  EXPECT_FALSE(find<QAbstractButton>("LabelGetSR").isChecked());

  find<QPushButton>("Rename").click();
  EXPECT_EQ(bytesOf("a.cr2"), "\tname    Head\r\n\t\t\tname Bend\r\nend\r\n");
  EXPECT_EQ(find<QLabel>("Outcome").text(), "No line will change.");
  find<QAbstractButton>("LabelGetSR").click();
  EXPECT_EQ(preview.topLevelItemCount(), 2);
}

TEST_F(SmallToolsTest, RenamerTakesAFileOfTheDesktop) {
  std::ofstream(hostPath("a.cr2"), std::ios::binary) << kLines;
  dispatcher().raise(opening().MenuDialRen.clicked);
  find<QAbstractButton>("LabelFriendly").click();
  auto& target = *find<QWidget>("Renamer").findChild<QWidget*>("Picture1");
  EXPECT_TRUE(drop(target, {QString::fromStdString(hostPath("a.cr2"))}));
  EXPECT_EQ(bytesOf("a.cr2"), "\tname    Head\r\n\t\t\tname Bend\r\nend\r\n");
}

TEST_F(SmallToolsTest, LauncherOpensTheFirstFile) {
  dispatcher().raise(opening().MenuLauncher.clicked);
  auto& target = *find<QWidget>("FormLaunch").findChild<QWidget*>("Picture1");
  const QString figures =
      QString::fromStdString(hostPath("Poser/Runtime/Libraries/Characters/Tilda/"));
  EXPECT_TRUE(drop(target, {figures + "tilda2.cr2", figures + "tilda.cr2"}));
  EXPECT_EQ(opening().OpenedPath, kTilda + "tilda2.cr2");
  EXPECT_GT(opening().ListActors.count(), 10);
}

TEST_F(SmallToolsTest, LauncherSaysWhatIsNoPicture) {
  dispatcher().raise(opening().MenuLauncher.clicked);
  auto& launcher = find<QWidget>("FormLaunch");
  auto& note = *launcher.findChild<QLabel*>("Note");
  EXPECT_EQ(note.text(), "Drop a file here");
  launcher.findChild<QCheckBox*>("Check1")->click();
  EXPECT_EQ(note.text(), "Drop a picture here");
  auto& target = *launcher.findChild<QWidget*>("Picture1");
  const QString runtime = QString::fromStdString(hostPath("Poser/Runtime/"));
  EXPECT_TRUE(drop(target, {runtime + "textures/Tilda/tilda.bmp"}));
  EXPECT_EQ(note.text(), "");
  EXPECT_TRUE(drop(target, {runtime + "Geometries/Tilda/tilda.obj"}));
  EXPECT_EQ(note.text(), "Invalid File Format!");
}

TEST_F(SmallToolsTest, ViewerShowsASmallMapAsLargeAsItIs) {
  dispatcher().run([this] {
    opening().CommonDialog6.setFileName("C:\\Poser\\Runtime\\textures\\Tilda\\tilda.bmp");
    session().load(*session().findForm("FormViewer"));
  });
  QTest::qWait(50);
  auto& map = dynamic_cast<MapView&>(find<QWidget>("Map"));
  EXPECT_DOUBLE_EQ(map.zoom(), 1);
  EXPECT_EQ(find<QLabel>("State").text().section(u' ', 0, 0), "tilda.bmp");
  QTest::keyClick(&map, Qt::Key_Plus);
  EXPECT_DOUBLE_EQ(map.zoom(), 1.25);
  QTest::keyClick(&map, Qt::Key_0);
  EXPECT_GT(map.zoom(), 2);
  QTest::keyClick(&map, Qt::Key_1);
  EXPECT_DOUBLE_EQ(map.zoom(), 1);
}

TEST_F(SmallToolsTest, GraphPaperIsSavedByItsButton) {
  session().disk.changeFolder("C:\\");
  dispatcher().run([this] { session().load(*session().findForm("FormScale")); });
  auto& across = find<QLineEdit>("TextHorizontal");
  auto& down = find<QLineEdit>("TextVertical");
  QTest::keyClicks(&across, "20");
  QTest::keyClicks(&down, "10");
  find<QPushButton>("Go").click();
  EXPECT_EQ(bytesOf("20X10.bmp").size(), 54U + 60 * 10);
  EXPECT_FALSE(down.isVisible());
  find<QPushButton>("Go").click();
  EXPECT_TRUE(down.isVisible());
  EXPECT_EQ(down.text(), "");
}

TEST_F(SmallToolsTest, MagnifierSaysWhereItCannotLook) {
  dispatcher().run([this] { session().load(*session().findForm("Magnifier")); });
  QTest::qWait(50);
  EXPECT_TRUE(find<QLabel>("Refusal").isVisible());
}

}  // namespace
}  // namespace norvik::desktop
