#include "desktop/bench.h"
#include "desktop/pumping_host.h"
#include "desktop/words.h"
#include "text/line_reader.h"
#include "text/line_writer.h"

#include <QtTest>

namespace norvik::desktop {

namespace {

struct EmptyForm : front::Form {
  EmptyForm() : Form("EmptyForm", "") {}
};

class FrontEndTest : public Bench<EmptyForm> {};

TEST_F(FrontEndTest, ABoxSaysWhatTheToolSaysAndAnswers) {
  asker.answers = {front::Answer::no};
  EXPECT_EQ(frontEnd.messageBox("one\r\ntwo", "Alert!", front::kYesNo + front::kQuestion),
            front::Answer::no);
  ASSERT_EQ(asker.boxes.size(), 1U);
  EXPECT_EQ(asker.boxes[0].title, "Alert!");
  EXPECT_EQ(asker.boxes[0].text, "one\ntwo");
  EXPECT_EQ(asker.boxes[0].style, 36);
}

TEST_F(FrontEndTest, ADialogSpeaksOfHostPathsAndTheToolsOfSystemPaths) {
  disk.makeFolders("C:\\Poser\\Runtime");
  asker.paths = {hostName(folder.path()) + "/Poser/Runtime/a b.cr2"};
  const auto path = frontEnd.fileDialog({front::FileDialog::Kind::open, "CommonDialog1", "Open",
                                         "Figures|*.cr2;*.pz3|All|*.*", "C:\\poser", "x.cr2"});
  EXPECT_EQ(path, "C:\\Poser\\Runtime\\a b.cr2");
  ASSERT_EQ(asker.files.size(), 1U);
  EXPECT_EQ(asker.files[0].folder, hostName(folder.path()) + "/Poser");
  EXPECT_EQ(asker.files[0].name, "x.cr2");
  EXPECT_EQ(asker.files[0].filter, "Figures (*.cr2 *.pz3);;All (*)");
}

TEST_F(FrontEndTest, AFolderThatIsGoneGivesWayToTheCurrentOne) {
  asker.paths = {std::nullopt};
  EXPECT_EQ(frontEnd.fileDialog({front::FileDialog::Kind::save, "CommonDialog2", "Save As", "",
                                 "C:\\nowhere", "C:\\out.cr2"}),
            std::nullopt);
  ASSERT_EQ(asker.files.size(), 1U);
  EXPECT_TRUE(asker.files[0].save);
  EXPECT_EQ(asker.files[0].folder, hostName(folder.path()));
  EXPECT_EQ(asker.files[0].name, hostName(folder.path()) + "/out.cr2");
}

TEST_F(FrontEndTest, ADroppedFileAnswersTheNextOpenDialogAlone) {
  const front::FileDialog dialog{
      front::FileDialog::Kind::open, "CommonDialog1", "Open", "", "", ""};
  std::optional<std::string> first;
  std::optional<std::string> second;
  frontEnd.withChosen("C:\\dropped.cr2", [&] {
    first = frontEnd.fileDialog(dialog);
    second = frontEnd.fileDialog(dialog);
  });
  EXPECT_EQ(first, "C:\\dropped.cr2");
  EXPECT_EQ(second, std::nullopt);
  frontEnd.withChosen("C:\\dropped.cr2", [] {});
  EXPECT_EQ(frontEnd.fileDialog(dialog), std::nullopt);
}

TEST_F(FrontEndTest, AFileErrorEndsAHandlerWithABox) {
  dispatcher.run([] { throw text::FileError(text::ErrorNumber::fileNotFound); });
  ASSERT_EQ(asker.boxes.size(), 1U);
  EXPECT_EQ(asker.boxes[0].title, "Norvik");
  EXPECT_EQ(asker.boxes[0].text, "Run-time error '53': File not found");
  EXPECT_EQ(asker.boxes[0].style, front::kCritical);
}

TEST_F(FrontEndTest, AFileErrorSaysWhichFileAndWhatWasDoneWithIt) {
  dispatcher.run([&] { disk.remove("C:\\gone.cr2"); });
  dispatcher.run([] { throw text::FileError(text::ErrorNumber::overflow); });
  ASSERT_EQ(asker.boxes.size(), 2U);
  EXPECT_EQ(asker.boxes[0].text, "Run-time error '53': File not found");
  EXPECT_EQ(asker.boxes[0].note, "While deleting C:\\gone.cr2");
  EXPECT_EQ(asker.boxes[1].note, "");
}

TEST_F(FrontEndTest, AQuestionThatMayDoHarmSaysSo) {
  dispatcher.run([&] {
    const front::Caution caution(session, "It holds bytes of 0.");
    frontEnd.messageBox("Repair?", "Sorry!", front::kOkCancel);
  });
  dispatcher.run([&] { frontEnd.messageBox("Repair?", "Sorry!", front::kOkCancel); });
  ASSERT_EQ(asker.boxes.size(), 2U);
  EXPECT_EQ(asker.boxes[0].note, "It holds bytes of 0.");
  EXPECT_TRUE(asker.boxes[0].cautious);
  EXPECT_FALSE(asker.boxes[1].cautious);
}

TEST_F(FrontEndTest, ADialogHasPosersLibrariesAndTheFoldersUsedLast) {
  namespace fs = std::filesystem;
  fs::create_directories(folder.path() + "/Poser/Runtime/Libraries/Hair");
  fs::create_directories(folder.path() + "/mine");
  opening.PoserLocation = "C:\\Poser\\";
  const front::FileDialog dialog{.title = "Open a figure"};
  asker.paths = {QString::fromStdString(folder.path() + "/mine/a.cr2")};
  frontEnd.fileDialog(dialog);
  frontEnd.fileDialog(dialog);
  ASSERT_EQ(asker.files.size(), 2U);
  EXPECT_EQ(asker.files[0].title, "Open a figure");
  const QString drive = QString::fromStdString(folder.path());
  EXPECT_EQ(asker.files[0].places, QStringList{drive + "/Poser/Runtime/Libraries/Hair"});
  EXPECT_EQ(asker.files[1].places,
            (QStringList{drive + "/Poser/Runtime/Libraries/Hair", drive + "/mine"}));
  EXPECT_EQ(asker.files[0].hostPath("c:\\mine\\a.cr2"), drive + "/mine/a.cr2");
  EXPECT_EQ(asker.files[0].hostPath("a.cr2"), "");
}

TEST_F(FrontEndTest, TheHourglassIsOnTheCursorOnce) {
  frontEnd.setHourglass(opening, true);
  frontEnd.setHourglass(opening, true);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  frontEnd.setHourglass(opening, false);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(FrontEndTest, AWaitingToolGoesOnAfterOneAct) {
  int acts = 0;
  QTimer::singleShot(20, &window, [&] { dispatcher.run([&] { ++acts; }); });
  dispatcher.run([&] {
    frontEnd.waitForOperator();
    EXPECT_EQ(acts, 1);
  });
  EXPECT_EQ(acts, 1);
}

TEST_F(FrontEndTest, AWaitingToolStopsWhenTheWindowCloses) {
  bool wentOn = false;
  QTimer::singleShot(20, &window, [&] { frontEnd.stopWaiting(); });
  dispatcher.run([&] {
    frontEnd.waitForOperator();
    wentOn = true;
  });
  EXPECT_FALSE(wentOn);
  EXPECT_TRUE(asker.boxes.empty());
}

TEST_F(FrontEndTest, AProgramThatIsNotThereIsAFileError) {
  dispatcher.run([&] { frontEnd.run("C:\\PStart.exe"); });
  ASSERT_EQ(asker.boxes.size(), 1U);
  EXPECT_EQ(asker.boxes[0].text, "Run-time error '53': File not found");
}

TEST_F(FrontEndTest, ALongPassLetsTheWindowBreathe) {
  {
    text::LineWriter out(disk, "C:\\long.txt");
    const std::string line(1000, 'x');
    for (int i = 0; i < 3000; ++i) out.line(line);
    out.close();
  }
  PumpingHost pumping(*host);
  text::Disk slow(pumping);
  slow.mount('C', folder.path());
  std::vector<PumpingHost::Progress> breaths;
  pumping.setPump([&](const PumpingHost::Progress& progress) { breaths.push_back(progress); });
  text::LineReader in(slow, "C:\\long.txt");
  int lines = 0;
  while (!in.atEnd()) {
    static_cast<void>(in.line());
    if (++lines % 1000 == 0) QTest::qSleep(110);
  }
  EXPECT_EQ(lines, 3000);
  ASSERT_GE(breaths.size(), 2U);
  EXPECT_EQ(breaths[0].size, 3000U * 1002U);
  EXPECT_LT(breaths[0].position, breaths[1].position);
}

}  // namespace

}  // namespace norvik::desktop
