// What the tools for meshes have replaced is offered back where the operator looks.

#include "desktop/program_bench.h"
#include "front/form_obj.h"
#include "text/history.h"

#include <QPushButton>
#include <QTreeWidget>

#include <sstream>

namespace norvik::desktop {

namespace {

const std::string kMesh =
    "v 0.1 0.2 0.3\r\nv 0.2 0.2 0.3\r\nv 0.2 0.4 0.3\r\n"
    "vt 0 0\r\nvt 1 0\r\nvt 1 1\r\n"
    "g left\r\nf 1/1 2/2 3/3\r\ng right\r\nf 1/1 3/3 2/2\r\n";

class UndoTest : public ProgramBench {
 protected:
  UndoTest() {
    std::filesystem::create_directory(host("meshes"));
    for (const char* name : {"meshes/a.obj", "meshes/b.obj", "meshes/c.obj"}) write(name, kMesh);
  }

  std::string host(const std::string& name) const { return folder_.path() + "/" + name; }
  void write(const std::string& name, const std::string& bytes) const {
    std::ofstream(host(name), std::ios::binary) << bytes;
  }
  std::string read(const std::string& name) const {
    std::ostringstream bytes;
    bytes << std::ifstream(host(name), std::ios::binary).rdbuf();
    return bytes.str();
  }
  void willChoose(const std::string& name) { asker_.paths = {QString::fromStdString(host(name))}; }

  front::FormOBJ& form() { return dynamic_cast<front::FormOBJ&>(*session().findForm("FormOBJ")); }
  void openWorkshop() {
    start(host("meshes/a.obj"));
    dispatcher().raise(opening().PictureOBJView.released, front::Mouse{});
    dispatcher().raise(form().LabelView.clicked);
    ASSERT_EQ(form().ListGroups.count(), 2);
  }
  /// In the main window's status bar.
  QLabel& news() { return *window().findChild<QLabel*>(QStringLiteral("HistoryNews")); }
  QLabel& newsOfWorkshop() {
    return *find<QWidget>("FormOBJ").findChild<QLabel*>(QStringLiteral("HistoryNews"));
  }
  bool offersUndoOf(const QLabel& news, const QString& name) {
    return news.isVisible() && news.text().startsWith(name + QStringLiteral(" replaced")) &&
           news.text().contains(QStringLiteral("href=\"undo\""));
  }
  static void undo(QLabel& news) { emit news.linkActivated(QStringLiteral("undo")); }
};

TEST_F(UndoTest, IsOfferedAfterTheScaler) {
  start(host("meshes/a.obj"));
  opening().TextOBJScale.setText("2");
  dispatcher().raise(opening().TextOBJScale.key, "Enter");
  ASSERT_NE(read("meshes/a.obj"), kMesh);
  EXPECT_TRUE(offersUndoOf(news(), "a.obj"));
  EXPECT_FALSE(news().text().contains("more"));
  undo(news());
  EXPECT_EQ(read("meshes/a.obj"), kMesh);
}

TEST_F(UndoTest, IsOfferedForEachFileOfABatch) {
  start(host("meshes/a.obj"));
  session().disk.changeFolder("C:\\meshes");
  opening().CheckOBJBatch.setValue(true);
  opening().TextOBJScale.setText("2");
  dispatcher().raise(opening().TextOBJScale.key, "Enter");
  EXPECT_TRUE(offersUndoOf(news(), "c.obj"));
  EXPECT_TRUE(news().text().contains("and 2 more")) << news().text().toStdString();
  undo(news());
  EXPECT_EQ(read("meshes/c.obj"), kMesh);
  EXPECT_FALSE(news().text().contains("more")) << "the restoring is an act of its own";

  emit news().linkActivated(QStringLiteral("list"));
  auto* list = window().findChild<QTreeWidget*>(QStringLiteral("HistoryList"));
  ASSERT_NE(list, nullptr);
  for (const char* name : {"a.obj", "b.obj"}) {
    ASSERT_NE(read(std::string("meshes/") + name), kMesh);
    const auto rows = list->findItems(QString::fromLatin1(name), Qt::MatchExactly, 1);
    ASSERT_FALSE(rows.isEmpty()) << name;
    // The newest stands first; other runs may have left some.
    list->setCurrentItem(rows.front());
    window().findChild<QPushButton*>(QStringLiteral("HistoryRestore"))->click();
    EXPECT_EQ(read(std::string("meshes/") + name), kMesh);
  }
}

TEST_F(UndoTest, IsOfferedAfterTheRewriteOnLeaving) {
  openWorkshop();
  form().ListGrpRen.add("left*throat");
  form().RenamesPending = true;
  willChoose("meshes/a.obj");
  dispatcher().run("FormOBJ", [this] { session().unload(form()); });
  ASSERT_NE(read("meshes/a.obj").find("g throat\r\n"), std::string::npos);
  EXPECT_TRUE(offersUndoOf(news(), "a.obj"));
  undo(news());
  EXPECT_EQ(read("meshes/a.obj"), kMesh);
}

TEST_F(UndoTest, IsOfferedInTheWorkshopAfterSaveSelected) {
  openWorkshop();
  form().CheckSaveGroups.setValue(true);
  dispatcher().raise(form().CheckSaveGroups.clicked);
  ASSERT_EQ(form().ListGroupsSave.count(), 3);
  form().ListGroupsSave.setTicked(1, true);
  form().ListGroupsSave.setTicked(2, true);
  willChoose("meshes/b.obj");
  dispatcher().raise(form().ListGroupsSave.tickChanged, 2);
  ASSERT_EQ(read("meshes/b.obj").find("g left"), std::string::npos);
  EXPECT_TRUE(offersUndoOf(news(), "b.obj"));
  EXPECT_TRUE(offersUndoOf(newsOfWorkshop(), "b.obj"));
  undo(newsOfWorkshop());
  EXPECT_EQ(read("meshes/b.obj"), kMesh);
}

TEST_F(UndoTest, IsOfferedInTheWorkshopForATemplateThatWasThere) {
  openWorkshop();
  write("meshes/a.bmp", "an old picture");
  dispatcher().raise(form().LabelUVMap.clicked);
  dispatcher().raise(form().LabelSaveMap.clicked);
  form().TextMapSize.setText("32");
  dispatcher().raise(form().TextMapSize.key, "Enter");
  ASSERT_EQ(read("meshes/a.bmp").substr(0, 2), "BM");
  EXPECT_TRUE(offersUndoOf(news(), "a.bmp"));
  EXPECT_TRUE(offersUndoOf(newsOfWorkshop(), "a.bmp"));
  undo(newsOfWorkshop());
  EXPECT_EQ(read("meshes/a.bmp"), "an old picture");
}

}  // namespace

}  // namespace norvik::desktop
