// Folder and drive lists on the screen, and the windows of the installer and the file tools.

#include "desktop/bench.h"
#include "desktop/forms/cr2_install_window.h"
#include "desktop/forms/remove_files_window.h"
#include "desktop/forms/renumber_window.h"
#include "install/remove_files.h"
#include "install/renumber.h"
#include "install/target_folders.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

#include <filesystem>
#include <fstream>

namespace norvik::desktop {

namespace {

namespace fs = std::filesystem;

/// A form's own window over a drive with a few files.
template <typename TestForm, typename Window>
class FilesBench : public Bench<TestForm> {
 protected:
  FilesBench() {
    for (const char* made : {"Poser/Runtime/Libraries/Characters", "Poser/Runtime/Geometries",
                             "seq", "Norvik/cr2install"}) {
      fs::create_directories(this->folder.path() + "/" + made);
    }
  }
  void write(const std::string& name, const std::string& bytes) {
    std::ofstream(this->folder.path() + "/" + name, std::ios::binary) << bytes;
  }
  void open() {
    this->form.setLoaded(true);
    made_ = std::make_unique<Window>(
        WindowParts{this->maker, this->session, this->frontEnd, [this] { closed = true; }, nullptr},
        this->form);
    this->dispatcher.setSync([this] { this->bindings.sync(this->form); });
    made_->show();
    this->dispatcher.sync();
  }
  template <typename Widget>
  Widget& find(const char* name) {
    return *made_->template findChild<Widget*>(QString::fromLatin1(name));
  }
  static QStringList rows(const QListWidget& list) {
    QStringList texts;
    for (int row = 0; row < list.count(); ++row) texts << list.item(row)->text().trimmed();
    return texts;
  }

  bool closed = false;
  std::unique_ptr<Window> made_;
};

class FoldersTest : public FilesBench<install::FormRenumber, RenumberWindow> {
 protected:
  FoldersTest() {
    install::wireRenumber(session, form);
    write("seq/1.obj", "1");
    write("seq/2.obj", "2");
    write("seq/002.obj", "taken");
    form.Dir1.setPath("C:\\Poser\\Runtime");
    form.Drive1.setPath("C:");
    open();
  }
  QListWidget& folders() { return find<QListWidget>("Dir1"); }
};

TEST_F(FoldersTest, TheWayToTheFolderAndWhatItHoldsAreShown) {
  EXPECT_EQ(rows(folders()), QStringList({"C:\\", "Poser", "Runtime", "Geometries", "Libraries"}));
  EXPECT_EQ(folders().currentRow(), 2);
}

TEST_F(FoldersTest, ADoubleClickGoesThere) {
  const QRect place = folders().visualItemRect(folders().item(4));
  QTest::mouseDClick(folders().viewport(), Qt::LeftButton, {}, place.center());
  EXPECT_EQ(form.Dir1.path(), "C:\\Poser\\Runtime\\Libraries");
  QTest::mouseDClick(folders().viewport(), Qt::LeftButton, {},
                     folders().visualItemRect(folders().item(0)).center());
  EXPECT_EQ(form.Dir1.path(), "C:\\");
}

TEST_F(FoldersTest, TheKeysWalk) {
  folders().setFocus();
  QTest::keyClick(&folders(), Qt::Key_Left);
  EXPECT_EQ(form.Dir1.path(), "C:\\Poser");
  QTest::keyClick(&folders(), Qt::Key_Backspace);
  EXPECT_EQ(form.Dir1.path(), "C:\\");
  QTest::keyClick(&folders(), Qt::Key_Left);
  EXPECT_EQ(form.Dir1.path(), "C:\\");
  folders().setCurrentRow(3);
  EXPECT_EQ(folders().currentItem()->text().trimmed(), QStringLiteral("seq"));
  QTest::keyClick(&folders(), Qt::Key_Return);
  EXPECT_EQ(form.Dir1.path(), "C:\\seq");
}

TEST_F(FoldersTest, ADriveTakesTheFolderListToItsRoot) {
  disk.mount('D', folder.path() + "/seq");
  form.Drive1.setPath("D:");
  form.Drive1.setPath("C:");
  dispatcher.sync();
  auto& drives = find<QComboBox>("Drive1");
  ASSERT_EQ(drives.count(), 2);
  drives.setCurrentIndex(1);
  emit drives.activated(1);
  EXPECT_EQ(form.Drive1.path(), "D:");
  EXPECT_EQ(form.Dir1.path(), "D:\\");
  EXPECT_EQ(form.File1.count(), 3);
}

TEST_F(FoldersTest, TheNewNamesAreShownBeforeGo) {
  ASSERT_TRUE(front::walkTo(disk, form.Dir1, "C:\\seq"));
  dispatcher.raise(form.Dir1.changed);
  const QStringList shown = rows(find<QListWidget>("RenumberPreview"));
  ASSERT_EQ(shown.size(), 2);
  EXPECT_TRUE(shown[0].endsWith(QStringLiteral("001.obj")));
  EXPECT_TRUE(shown[1].contains(QStringLiteral("GO stops here")));
}

class RemoveFilesWindowTest : public FilesBench<install::FormRemoveFiles, RemoveFilesWindow> {
 protected:
  RemoveFilesWindowTest() {
    install::wireRemoveFiles(session, form);
    write("seq/a.tif", std::string(2048, 'a'));
    form.ListFiles.add("C:\\seq\\a.tif");
    form.ListFiles.add("C:\\seq\\gone.tif");
    open();
  }
};

TEST_F(RemoveFilesWindowTest, GoWaitsForAFileAndAChoice) {
  auto& go = find<QPushButton>("LabelGo");
  EXPECT_FALSE(go.isEnabled());
  form.ListFiles.setSelected(0, true);
  dispatcher.sync();
  EXPECT_FALSE(go.isEnabled());
  dispatcher.run([this] { form.OptionBackup.setValue(true); });
  EXPECT_TRUE(go.isEnabled());
}

TEST_F(RemoveFilesWindowTest, WhatIsSelectedIsWeighed) {
  form.ListFiles.setSelected(0, true);
  form.ListFiles.setSelected(1, true);
  dispatcher.sync();
  const QString total = find<QLabel>("SelectedTotal").text();
  EXPECT_TRUE(total.startsWith(QStringLiteral("1 file selected"))) << total.toStdString();
}

class InstallWindowTest : public FilesBench<install::FormCR2Install, Cr2InstallWindow> {};

TEST_F(InstallWindowTest, EachStagedFileIsShownWithItsWay) {
  for (const char* name :
       {"doll.cr2", "body.obj", "SKIN.TIF", "skin.tif", "taken.tif", "readme.txt"}) {
    write(std::string("Norvik/cr2install/") + name, "x");
  }
  write("Poser/Runtime/taken.tif", "x");
  opening.LabelRtDir.setCaption("C:\\Norvik\\cr2install");
  opening.LabelOBJFileName.setCaption("C:\\Norvik\\cr2install\\doll.cr2");
  opening.LabelObjPathCR2Install.setCaption("C:\\Poser\\Runtime\\Geometries");
  opening.LabelTexPathCR2Install.setCaption("C:\\Poser\\Runtime");
  form.DirCR2Install.setPath("C:\\Poser\\Runtime\\Libraries");
  open();
  auto& preview = find<QTreeWidget>("MovePreview");
  QStringList ways;
  for (int row = 0; row < preview.topLevelItemCount(); ++row) {
    ways << preview.topLevelItem(row)->text(0) + u'=' + preview.topLevelItem(row)->text(1);
  }
  EXPECT_EQ(ways,
            QStringList({"body.obj=C:\\Poser\\Runtime\\Geometries, as doll.obj",
                         "doll.cr2=C:\\Poser\\Runtime\\Libraries",
                         "readme.txt=stays: no part of the figure",
                         "SKIN.TIF=stays: its ending is in capitals", "skin.tif=C:\\Poser\\Runtime",
                         "taken.tif=stays: C:\\Poser\\Runtime has a taken.tif already"}));
  EXPECT_TRUE(fs::exists(folder.path() + "/Norvik/cr2install/skin.tif"));
}

}  // namespace

}  // namespace norvik::desktop
