// The installer's way in, at the window: what unpacks a zip file, and a figure inside its folders.

#include "desktop/address_catcher.h"
#include "desktop/program_bench.h"
#include "desktop/words.h"
#include "install/zip_file.h"
#include "support/zip_bytes.h"

#include <QFile>
#include <QProgressDialog>
#include <QPushButton>

namespace norvik::desktop {

namespace {

using tests::zipBytes;
using tests::ZipPart;

const std::string kFigure = "figureResFile :Runtime:Geometries:doll.obj\r\n";
const QString kNoFigure =
    QStringLiteral("No CR2 File in this zip file, or it has not been unzipped!");

class InstallerTest : public ProgramBench {
 protected:
  explicit InstallerTest(const std::string& unzipper)
      : ProgramBench("[Startup]\nPLoc=C:\\Poser\\\n" + unzipper) {
    start("");
    staging_ = session().disk.hostPath(opening().inProgramFolder("\\cr2install"));
  }

  void write(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder_.path() + "/" + name, std::ios::binary) << bytes;
  }
  bool exists(const std::string& name) const {
    return std::filesystem::exists(folder_.path() + "/" + name);
  }
  bool staged(const std::string& name) const {
    return std::filesystem::exists(staging_ + "/" + name);
  }
  QString zip() const { return hostName(folder_.path() + "/doll.zip"); }
  void install() { dispatcher().raise(opening().MenuInstallCR2.clicked); }
  bool installing() { return opening().ListboxListCR2Files.visible(); }

  const std::vector<ZipPart> kFlat{{"doll.cr2", kFigure}};
  const std::vector<ZipPart> kInFolders{{"readme.txt", "hello"},
                                        {"Runtime/Characters/doll.cr2", kFigure},
                                        {"Runtime/Textures/skin.tif", "picture"}};
  std::string staging_;
};

class OwnUnpackingTest : public InstallerTest {
 protected:
  OwnUnpackingTest() : InstallerTest("WZLoc=\n") {}
  void SetUp() override {
    if (!install::ZipFile::supported()) GTEST_SKIP() << "built without libarchive";
  }
};

TEST_F(OwnUnpackingTest, AFigureInsideFoldersIsLeftThereByDefault) {
  write("doll.zip", zipBytes(kInFolders));
  asker_.paths = {zip()};
  install();
  ASSERT_EQ(asker_.boxes.size(), 2U);
  EXPECT_EQ(asker_.boxes[0].text, kNoFigure);
  EXPECT_EQ(asker_.boxes[0].title, "Error!");
  EXPECT_TRUE(asker_.boxes[1].text.contains("Runtime/Characters/doll.cr2")) << "behind it";
  ASSERT_EQ(asker_.ways.size(), 1U);
  EXPECT_EQ(asker_.ways[0], (QStringList{"Unpack &flat", "&Open the folder"}));
  EXPECT_FALSE(installing());
  EXPECT_TRUE(staged("Runtime/Characters/doll.cr2"));
  EXPECT_FALSE(staged("doll.cr2"));
}

TEST_F(OwnUnpackingTest, AFigureInsideFoldersIsUnpackedFlat) {
  write("doll.zip", zipBytes(kInFolders));
  asker_.paths = {zip()};
  asker_.taken = {0};
  install();
  EXPECT_EQ(asker_.boxes.size(), 2U);
  EXPECT_TRUE(installing());
  EXPECT_TRUE(opening().LabelOBJFileName.caption().ends_with("\\cr2install\\doll.cr2"));
  for (const char* file : {"doll.cr2", "skin.tif", "readme.txt"}) EXPECT_TRUE(staged(file)) << file;
  EXPECT_FALSE(staged("Runtime"));
}

TEST_F(OwnUnpackingTest, TheFolderOfAFigureInsideFoldersIsOpened) {
  const AddressCatcher catcher;
  write("doll.zip", zipBytes(kInFolders));
  asker_.paths = {zip()};
  asker_.taken = {1};
  install();
  EXPECT_FALSE(installing());
  EXPECT_TRUE(staged("Runtime/Characters/doll.cr2"));
  ASSERT_EQ(catcher.taken.size(), 1);
  EXPECT_EQ(catcher.taken[0].toLocalFile(), hostName(staging_));
}

TEST_F(OwnUnpackingTest, AFigureThatCannotBeUnpackedFlatIsToldOfAgain) {
  std::vector<ZipPart> damaged = kInFolders;
  damaged[1].checksum = 1;
  write("doll.zip", zipBytes(damaged));
  asker_.paths = {zip()};
  asker_.taken = {0, 0};
  install();
  ASSERT_EQ(asker_.boxes.size(), 3U);
  EXPECT_EQ(asker_.boxes[2].text, kNoFigure);
  EXPECT_FALSE(installing());
}

TEST_F(OwnUnpackingTest, WithoutAFigureNothingIsOffered) {
  write("doll.zip", zipBytes({{"Runtime/readme.txt", "hello"}}));
  asker_.paths = {zip()};
  install();
  EXPECT_EQ(asker_.boxes.size(), 1U);
}

TEST_F(OwnUnpackingTest, ALimitIsNamedBelowTheMessage) {
  std::vector<ZipPart> bomb = kInFolders;
  bomb.push_back(tests::deflatedPart("much.txt", "x", 200'000'000));
  write("doll.zip", zipBytes(bomb));
  asker_.paths = {zip()};
  install();
  ASSERT_EQ(asker_.boxes.size(), 1U) << "nothing is offered: flat, it is as much";
  EXPECT_EQ(asker_.boxes[0].text, kNoFigure);
  EXPECT_TRUE(asker_.boxes[0].note.contains("1,100 times its own size"));
  EXPECT_TRUE(std::filesystem::is_empty(staging_));
}

class UnsetUnzipperTest : public InstallerTest {
 protected:
  UnsetUnzipperTest() : InstallerTest("") {}
};

TEST_F(UnsetUnzipperTest, NorvikItselfMayUnpack) {
  write("doll.zip", zipBytes(kFlat));
  asker_.paths = {QString(), zip()};
  install();
  ASSERT_EQ(asker_.files.size(), 2U);
  EXPECT_EQ(asker_.files[0].title, "Please Locate WinZip.exe");
  EXPECT_EQ(asker_.files[0].instead, "Unpack with Norvik");
  EXPECT_EQ(asker_.files[1].instead, "") << "the zip file has no such button";
  EXPECT_EQ(session().settings.get("Startup", "WZLoc", "0"), "");
  EXPECT_EQ(installing(), install::ZipFile::supported());

  dispatcher().raise(opening().PictureCR2InstallCancel.clicked);
  std::filesystem::remove(staging_ + "/doll.cr2");
  asker_.paths = {zip()};
  install();
  EXPECT_EQ(asker_.files.size(), 3U) << "nobody is asked for the unzipper again";
}

TEST_F(UnsetUnzipperTest, ACancelOfTheQuestionStoresNothing) {
  asker_.paths = {std::nullopt};
  install();
  EXPECT_EQ(asker_.files.size(), 1U);
  EXPECT_EQ(session().settings.get("Startup", "WZLoc", "0"), "0");
  EXPECT_TRUE(asker_.boxes.empty());
}

/// An unzipper that waits for a file "go", and then writes the figure.
class OutsideUnzipperTest : public InstallerTest {
 protected:
  OutsideUnzipperTest() : InstallerTest("WZLoc=C:\\slow unzip\n") {
    write("slow unzip",
          "#!/bin/sh\necho \"$1\" > arguments\necho \"$2\" >> arguments\n"
          "n=0; while [ ! -e go ] && [ $n -lt 200 ]; do sleep 0.1; n=$((n+1)); done\n"
          "cp \"$0.figure\" \"$2/doll.cr2\"\ntouch ended\n");
    std::filesystem::permissions(folder_.path() + "/slow unzip", std::filesystem::perms::owner_all);
    write("slow unzip.figure", kFigure);
    write("doll.zip", zipBytes(kFlat));
    asker_.paths = {zip()};
  }

  /// Installs; the wait for the unzipper, once it is up, is handed on.
  void installAnd(const std::function<void(QProgressDialog&)>& act) {
    QTimer eyes;
    QObject::connect(&eyes, &QTimer::timeout, [&] {
      auto* wait = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
      if (wait == nullptr || !exists("arguments")) return;
      EXPECT_EQ(wait->objectName(), "ProgramWait");
      eyes.stop();
      ++waits_;
      act(*wait);
    });
    eyes.start(10);
    install();
  }
  bool comes(const std::string& name) const {
    return QTest::qWaitFor([&] { return exists(name); }, 10000);
  }

  int waits_ = 0;
};

TEST_F(OutsideUnzipperTest, TheInstallerGoesOnWhenItHasEnded) {
  installAnd([this](QProgressDialog& wait) {
    EXPECT_TRUE(wait.labelText().startsWith("slow unzip is running."));
    EXPECT_FALSE(installing());
    write("go", "");
  });
  EXPECT_EQ(waits_, 1);
  EXPECT_TRUE(exists("ended"));
  EXPECT_TRUE(installing());
  EXPECT_TRUE(asker_.boxes.empty());
  QFile arguments(hostName(folder_.path() + "/arguments"));
  ASSERT_TRUE(arguments.open(QIODevice::ReadOnly));
  EXPECT_EQ(arguments.readAll().toStdString(), folder_.path() + "/doll.zip\n" + staging_ + "\n");
}

TEST_F(OutsideUnzipperTest, WhoWaitsNoLongerIsToldAndTheUnzipperRunsOn) {
  installAnd([](QProgressDialog& wait) {
    auto* leave = wait.findChild<QPushButton*>();
    ASSERT_NE(leave, nullptr);
    EXPECT_EQ(leave->text(), "&Wait no longer");
    QTest::mouseClick(leave, Qt::LeftButton);
  });
  EXPECT_EQ(waits_, 1);
  EXPECT_FALSE(exists("ended"));
  EXPECT_FALSE(installing());
  ASSERT_EQ(asker_.boxes.size(), 1U);
  EXPECT_EQ(asker_.boxes[0].text, kNoFigure);
  write("go", "");
  EXPECT_TRUE(comes("ended"));
  install();
  EXPECT_TRUE(installing()) << "the figure waits now";
}

TEST_F(OutsideUnzipperTest, EscapeWaitsNoLonger) {
  installAnd([](QProgressDialog& wait) { QTest::keyClick(&wait, Qt::Key_Escape); });
  EXPECT_EQ(waits_, 1);
  EXPECT_FALSE(installing());
  EXPECT_EQ(asker_.boxes.size(), 1U);
  write("go", "");
  EXPECT_TRUE(comes("ended"));
}

TEST_F(OutsideUnzipperTest, AFigureThatItHasLeftInFoldersIsUnpackedFlatByNorvik) {
  if (!install::ZipFile::supported()) GTEST_SKIP() << "built without libarchive";
  write("doll.zip", zipBytes(kInFolders));
  write("slow unzip", "#!/bin/sh\nmkdir -p \"$2/Runtime\"\necho hello > \"$2/Runtime/its.txt\"\n");
  asker_.taken = {0};
  install();
  EXPECT_EQ(asker_.boxes.size(), 2U);
  EXPECT_TRUE(installing());
  EXPECT_TRUE(staged("doll.cr2"));
  EXPECT_TRUE(staged("Runtime/its.txt")) << "what is not Norvik's own stays";
}

TEST_F(OutsideUnzipperTest, OneThatCannotBeStartedIsToldOf) {
  write("slow unzip", "#!/no/such/interpreter\n");
  install();
  ASSERT_EQ(asker_.boxes.size(), 2U);
  EXPECT_TRUE(asker_.boxes[0].text.startsWith("Can't find WinZip, you will need to unzip"));
  EXPECT_EQ(asker_.boxes[1].text, kNoFigure);
}

}  // namespace

}  // namespace norvik::desktop
