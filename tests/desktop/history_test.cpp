// The history at the window: the rows of a comparison, and the list of old versions.

#include "desktop/history/change_rows.h"
#include "desktop/history/changes_view.h"
#include "desktop/history/history_tools.h"
#include "desktop/maker.h"
#include "desktop/program.h"
#include "front/finished_file.h"
#include "support/temporary_folder.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace norvik::desktop {

namespace {

using tests::TemporaryFolder;

QStringList textsOf(const ChangeRows& rows) {
  QStringList texts;
  for (std::uint64_t i = 0; i < rows.count(); ++i) {
    const ChangeRows::Row row = rows.row(i);
    const bool gone = row.kind == ChangeRows::Kind::removed;
    const bool come = row.kind == ChangeRows::Kind::added;
    texts << (gone ? QStringLiteral("-") : come ? QStringLiteral("+") : QString()) + row.text;
  }
  return texts;
}

TEST(ChangeRowsTest, AreGroupedBySection) {
  const TemporaryFolder folder;
  folder.write("before", "x\nactor a\n\ttargetGeom Smile\n1\n2\nactor b\n\tSmile\n");
  folder.write("after", "y\nactor a\n1\n3\nactor b\n\tSmile\n");
  const ChangeRows rows(folder.path("before"), folder.path("after"));
  EXPECT_EQ(textsOf(rows),
            QStringList({"the beginning", "changed: line 1", "-x", "+y", "actor a",
                         "removed: line 3", "-    targetGeom Smile", "changed: line 4", "-2", "+3",
                         "Lines that still name what has gone", "Smile: line 6", "        Smile"}));
  EXPECT_EQ(rows.removed(), 3U);
  EXPECT_EQ(rows.added(), 2U);
  EXPECT_EQ(rows.changes(), 3U);
}

TEST(ChangeRowsTest, EqualFilesHaveNone) {
  const TemporaryFolder folder;
  folder.write("f", "a\n");
  EXPECT_EQ(ChangeRows(folder.path("f"), folder.path("f")).count(), 0U);
}

TEST(ChangesViewTest, GoesFromChangeToChange) {
  const TemporaryFolder folder;
  std::string before;
  std::string after;
  for (int i = 0; i < 400; ++i) {
    before += std::to_string(i) + "\n";
    after += (i % 40 == 0 ? "new " : "") + std::to_string(i) + "\n";
  }
  folder.write("before", before);
  folder.write("after", after);
  ChangesView view(std::make_unique<ChangeRows>(folder.path("before"), folder.path("after")),
                   nullptr);
  view.resize(300, 100);
  view.show();
  const QScrollBar& bar = *view.verticalScrollBar();
  view.goToNext();
  EXPECT_EQ(bar.value(), static_cast<int>(view.rows().startOf(1)));
  view.goToNext();
  EXPECT_EQ(bar.value(), static_cast<int>(view.rows().startOf(2)));
  view.goToPrevious();
  EXPECT_EQ(bar.value(), static_cast<int>(view.rows().startOf(1)));
  EXPECT_FALSE(view.grab().isNull());
}

/// Says Yes and remembers what was asked.
class YesAsker : public Asker {
 public:
  using Asker::box;
  front::Answer box(const Box& box) override {
    asked << box.text;
    return (box.style & front::kButtonMask) == front::kYesNo ? front::Answer::yes
                                                             : front::Answer::ok;
  }
  std::optional<QString> file(const File&) override { return chosen; }
  std::optional<front::Colour> colour(front::Colour) override { return std::nullopt; }
  bool printer(QPrinter&) override { return false; }

  QStringList asked;
  std::optional<QString> chosen;  ///< in every file dialog
};

/// The program with a drive, a state folder and a home of its own.
class HistoryProgramTest : public testing::Test {
 protected:
  HistoryProgramTest() {
    qputenv("XDG_STATE_HOME", QByteArray::fromStdString(outside_.path("state")));
    drive_.makeFolder("Norvik");
    Options options;
    options.drives = {{'C', drive_.path()}};
    options.settings = outside_.path("norvik.ini");
    program_ = std::make_unique<Program>(options, asker_);
  }
  ~HistoryProgramTest() override { qputenv("XDG_STATE_HOME", before_); }

  void replace() {
    drive_.write("f.cr2", "old\r\n");
    drive_.write("s", "new\r\n");
    program_->dispatcher().run("PictureTool",
                               [this] { program_->session().disk.replace("C:\\s", "C:\\f.cr2"); });
  }
  QWidget& window() { return program_->mainWindow(); }
  QLabel& news() { return *window().findChild<QLabel*>(QStringLiteral("HistoryNews")); }

  const QByteArray before_ = qgetenv("XDG_STATE_HOME");
  TemporaryFolder drive_;
  TemporaryFolder outside_;
  YesAsker asker_;
  std::unique_ptr<Program> program_;
};

TEST_F(HistoryProgramTest, TheStatusLinePutsBackWhatWasReplaced) {
  replace();
  EXPECT_TRUE(news().text().startsWith(QStringLiteral("f.cr2 replaced")));
  EXPECT_TRUE(news().text().contains(QStringLiteral("Undo")));
  emit news().linkActivated(QStringLiteral("undo"));
  EXPECT_EQ(drive_.read("f.cr2"), "old\r\n");
  EXPECT_TRUE(asker_.asked.isEmpty());
}

TEST_F(HistoryProgramTest, TheStatusLineOffersACopyOfAResult) {
  drive_.write("Norvik/mirmorph.cr2", "made\r\n");
  program_->session().front.tellOf({.path = "C:\\Norvik\\mirmorph.cr2", .isScratch = true});
  auto& result = *window().findChild<QLabel*>(QStringLiteral("Result"));
  EXPECT_TRUE(result.text().startsWith(QStringLiteral("Made: \\mirmorph.cr2")));
  EXPECT_TRUE(result.text().contains(QStringLiteral("Save as ...")));
  EXPECT_EQ(result.toolTip(), QStringLiteral("C:\\Norvik\\mirmorph.cr2"));
  asker_.chosen = QString::fromStdString(drive_.path("kept.cr2"));
  emit result.linkActivated(QStringLiteral("0"));
  EXPECT_EQ(drive_.read("kept.cr2"), "made\r\n");
  EXPECT_EQ(drive_.read("Norvik/mirmorph.cr2"), "made\r\n");
  EXPECT_TRUE(result.text().startsWith(QStringLiteral("Saved: kept.cr2")));
  EXPECT_FALSE(result.text().contains(QStringLiteral("Save as ...")));
}

TEST_F(HistoryProgramTest, TheLineOfAResultTakesTheFocusWithAnActionAlone) {
  auto& result = *window().findChild<QLabel*>(QStringLiteral("Result"));
  EXPECT_EQ(result.focusPolicy(), Qt::NoFocus);
  program_->session().front.tellOf({.path = "C:\\Norvik\\mirmorph.cr2", .isScratch = true});
  EXPECT_EQ(result.focusPolicy(), Qt::StrongFocus);
  program_->dispatcher().run("PictureOther", [] {});
  EXPECT_EQ(result.focusPolicy(), result.text().isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
}

TEST_F(HistoryProgramTest, TheShortcutAsksAndNamesTheFile) {
  replace();
  window().findChild<QAction*>(QStringLiteral("UndoLast"))->trigger();
  ASSERT_EQ(asker_.asked.size(), 1);
  EXPECT_TRUE(asker_.asked[0].contains(QStringLiteral("C:\\f.cr2")));
  EXPECT_EQ(drive_.read("f.cr2"), "old\r\n");
}

TEST_F(HistoryProgramTest, WithoutAnEntryThereIsNothingToUndo) {
  window().findChild<QAction*>(QStringLiteral("UndoLast"))->trigger();
  EXPECT_EQ(asker_.asked, QStringList{"No earlier version of any file is kept."});
}

TEST_F(HistoryProgramTest, TheListFiltersAndRestores) {
  replace();
  program_->dispatcher().run("PictureOther", [this] {
    drive_.write("g.cr2", "other");
    program_->session().disk.remove("C:\\g.cr2");
  });
  window().findChild<QAction*>(QStringLiteral("History"))->trigger();
  auto* list = window().findChild<QTreeWidget*>(QStringLiteral("HistoryList"));
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->topLevelItemCount(), 2);
  EXPECT_EQ(list->topLevelItem(0)->text(1), QStringLiteral("g.cr2"));
  EXPECT_EQ(list->topLevelItem(1)->text(3), QStringLiteral("PictureTool"));
  window().findChild<QLineEdit*>(QStringLiteral("HistoryFilter"))->setText("picturetool");
  EXPECT_TRUE(list->topLevelItem(0)->isHidden());
  EXPECT_FALSE(list->topLevelItem(1)->isHidden());
  list->setCurrentItem(list->topLevelItem(1));
  window().findChild<QPushButton*>(QStringLiteral("HistoryRestore"))->click();
  EXPECT_EQ(drive_.read("f.cr2"), "old\r\n");
  EXPECT_EQ(list->topLevelItemCount(), 3);
}

TEST_F(HistoryProgramTest, SaysThatNothingWasKept) {
  program_->session().settings.set("History", "Megabytes", "1");
  drive_.write("f.cr2", std::string(2 << 20U, 'x'));
  program_->dispatcher().run([this] { program_->session().disk.remove("C:\\f.cr2"); });
  EXPECT_EQ(news().text(), QStringLiteral("f.cr2 deleted; no earlier version was kept"));
}

}  // namespace

}  // namespace norvik::desktop
