// The names of a mesh in the workshop's window: their keys, what waits to be written, the filter.

#include "desktop/bind/list_view.h"
#include "desktop/program_bench.h"
#include "front/form_obj.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

namespace norvik::desktop {
namespace {

using Names = std::vector<std::string>;

class MeshNamesTest : public ProgramBench {
 protected:
  MeshNamesTest() {
    std::ofstream(folder_.path() + "/a.obj", std::ios::binary)
        << "v 0 0 0\r\nv 0 1 0\r\nv 1 1 0\r\nv 1 0 0\r\n"
           "g neck\r\nusemtl skin\r\nf 1 2 3 4\r\nf 1 2 3\r\n"
           "g head\r\nf 1 2 3 4\r\n"
           "g hair\r\nusemtl fur\r\nf 1 2 3\r\n";
    start("C:\\a.obj");
    dispatcher().raise(opening().PictureOBJView.released, front::Mouse{});
    dispatcher().raise(form().LabelView.clicked);
    workshop().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&workshop()));
    dispatcher().raise(form().CommandListGroups.clicked);
  }

  front::FormOBJ& form() { return dynamic_cast<front::FormOBJ&>(*session().findForm("FormOBJ")); }
  QWidget& workshop() { return find<QWidget>("FormOBJ"); }
  template <typename Widget>
  Widget& part(const char* name) {
    return *workshop().findChild<Widget*>(QString::fromLatin1(name));
  }

  /// The list in which names are chosen, with the keys.
  ListView& openNames() {
    dispatcher().raise(form().LabelRichRename.clicked);
    auto& names = part<ListView>("ListGroups");
    names.setFocus();
    return names;
  }
  static void go(ListView& names, int row) { names.setCurrentIndex(names.model()->index(row, 0)); }
  const Names& names() { return form().ListGroups.items(); }
  const Names& pending() { return form().ListGrpRen.items(); }
  QStringList pendingRows() {
    QStringList rows;
    const auto& list = part<QListWidget>("PendingRows.ListGrpRen");
    for (int i = 0; i < list.count(); ++i) rows << list.item(i)->text();
    return rows;
  }
  QStringList seenRows(const char* listing) {
    QStringList rows;
    const auto& tree = part<QTreeWidget>(listing);
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
      if (!tree.topLevelItem(i)->isHidden()) rows << tree.topLevelItem(i)->text(0);
    }
    return rows;
  }
};

TEST_F(MeshNamesTest, F2AndReturnRenameInPlace) {
  ListView& list = openNames();
  auto& line = part<QLineEdit>("InPlace.ListGroups");
  go(list, 0);
  QTest::keyClick(&list, Qt::Key_F2);
  EXPECT_TRUE(line.isVisible());
  EXPECT_EQ(line.text(), "neck");
  EXPECT_EQ(line.selectedText(), "neck");
  QTest::keyClicks(&line, "throat");
  EXPECT_EQ(names(), (Names{"neck", "head", "hair"}));
  QTest::keyClick(&line, Qt::Key_Return);
  EXPECT_FALSE(line.isVisible());
  EXPECT_EQ(names(), (Names{"throat", "head", "hair"}));
  EXPECT_EQ(pending(), Names{"neck*throat"});
  // As behind any rename nothing is selected; the keys are in the list still.
  EXPECT_EQ(form().ListGroups.index(), front::ListBox::kNone);
  EXPECT_EQ(workshop().focusWidget(), &list);
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(line.text(), "head");
  QTest::keyClicks(&line, "skull");
  QTest::keyClick(&line, Qt::Key_Enter);
  EXPECT_EQ(names(), (Names{"throat", "skull", "hair"}));
}

TEST_F(MeshNamesTest, WhatIsTypedInPlaceAndNotTakenChangesNothing) {
  ListView& list = openNames();
  auto& line = part<QLineEdit>("InPlace.ListGroups");
  go(list, 1);
  QTest::keyClick(&list, Qt::Key_F2);
  QTest::keyClicks(&line, "skull");
  QTest::keyClick(&line, Qt::Key_Escape);
  EXPECT_FALSE(line.isVisible());
  EXPECT_EQ(workshop().focusWidget(), &list);
  // The same name, and none.
  QTest::keyClick(&list, Qt::Key_F2);
  QTest::keyClick(&line, Qt::Key_Return);
  QTest::keyClick(&list, Qt::Key_F2);
  line.clear();
  QTest::keyClick(&line, Qt::Key_Return);
  EXPECT_EQ(names(), (Names{"neck", "head", "hair"}));
  EXPECT_EQ(pending(), Names{});
  EXPECT_FALSE(form().RenamesPending);
}

TEST_F(MeshNamesTest, DeleteMarksANameForDropping) {
  ListView& list = openNames();
  go(list, 1);
  QTest::keyClick(&list, Qt::Key_Delete);
  EXPECT_EQ(names(), (Names{"neck", "hair"}));
  EXPECT_EQ(pending(), Names{"head* NULL"});
  EXPECT_EQ(pendingRows(), QStringList{"head (drop)"});
  // The next name has moved up to the same row.
  EXPECT_EQ(list.currentIndex().row(), 1);
  QTest::keyClick(&list, Qt::Key_Delete);
  EXPECT_EQ(names(), Names{"neck"});
}

TEST_F(MeshNamesTest, SpaceTicksInTheSaveList) {
  openNames();
  part<QCheckBox>("CheckSaveGroups").click();
  auto& saved = part<ListView>("ListGroupsSave");
  const bool stopped = form().PictureNewFile.visible();
  saved.setFocus();
  go(saved, 1);
  QTest::keyClick(&saved, Qt::Key_Space);
  EXPECT_EQ(form().ListGroupsSave.ticks(), std::vector<int>{1});
  QTest::keyClick(&saved, Qt::Key_Space);
  EXPECT_EQ(form().ListGroupsSave.ticks(), std::vector<int>{});
  // The spin was not touched.
  EXPECT_EQ(form().PictureNewFile.visible(), stopped);
  EXPECT_TRUE(form().PictureStore.visible());
}

TEST_F(MeshNamesTest, APendingRenameIsTakenBackAlone) {
  ListView& list = openNames();
  EXPECT_FALSE(part<QWidget>("Pending.ListGrpRen").isVisible());
  auto& line = part<QLineEdit>("InPlace.ListGroups");
  for (const char* name : {"throat", "gorge"}) {
    go(list, 0);
    QTest::keyClick(&list, Qt::Key_F2);
    QTest::keyClicks(&line, QString::fromLatin1(name));
    QTest::keyClick(&line, Qt::Key_Return);
  }
  go(list, 2);
  QTest::keyClick(&list, Qt::Key_Delete);
  EXPECT_TRUE(part<QWidget>("Pending.ListGrpRen").isVisible());
  EXPECT_EQ(pendingRows(), (QStringList{"neck -> throat", "throat -> gorge", "hair (drop)"}));

  auto& rows = part<QListWidget>("PendingRows.ListGrpRen");
  auto& also = part<QLabel>("AlsoTakenBack.ListGrpRen");
  auto& back = part<QPushButton>("TakeBack.ListGrpRen");
  EXPECT_FALSE(back.isEnabled());
  rows.setCurrentRow(2);
  EXPECT_TRUE(back.isEnabled());
  back.click();
  EXPECT_EQ(names(), (Names{"gorge", "head", "hair"}));
  EXPECT_FALSE(also.isVisible());
  rows.setCurrentRow(0);
  QTest::keyClick(&rows, Qt::Key_Delete);
  EXPECT_EQ(names(), (Names{"neck", "head", "hair"}));
  EXPECT_EQ(pendingRows(), QStringList{});
  EXPECT_TRUE(also.isVisible());
  EXPECT_EQ(also.text(), "Taken back with it: throat -> gorge");
  EXPECT_FALSE(form().RenamesPending);
  // What was said goes with the next change.
  go(list, 0);
  QTest::keyClick(&list, Qt::Key_Delete);
  EXPECT_FALSE(also.isVisible());
  EXPECT_EQ(pendingRows(), QStringList{"neck (drop)"});
}

TEST_F(MeshNamesTest, TheRingStaysAroundTheRenamesWhenTheyMove) {
  ListView& list = openNames();
  auto& line = part<QLineEdit>("InPlace.ListGroups");
  for (const char* name : {"throat", "gorge"}) {
    go(list, 0);
    QTest::keyClick(&list, Qt::Key_F2);
    QTest::keyClicks(&line, QString::fromLatin1(name));
    QTest::keyClick(&line, Qt::Key_Return);
  }
  go(list, 1);
  QTest::keyClick(&list, Qt::Key_Delete);
  auto& rows = part<QListWidget>("PendingRows.ListGrpRen");
  EXPECT_TRUE(QTest::qWaitFor([&] {
    workshop().activateWindow();
    rows.setFocus();
    return rows.hasFocus();
  }));
  const int before = rows.mapTo(&workshop(), QPoint(0, 0)).y();
  rows.setCurrentRow(0);
  QTest::keyClick(&rows, Qt::Key_Delete);
  // The names give and take the room of what is said below.
  EXPECT_TRUE(QTest::qWaitFor([&] { return rows.mapTo(&workshop(), QPoint(0, 0)).y() != before; }));
  constexpr int kAround = 2;
  const QRect around(rows.mapTo(&workshop(), QPoint(0, 0)), rows.size());
  EXPECT_EQ(part<QWidget>("FocusRing").geometry(),
            around.adjusted(-kAround, -kAround, kAround, kAround));
}

TEST_F(MeshNamesTest, TheFilterNarrowsWhatIsShownAndChangesNothingElse) {
  ASSERT_EQ(seenRows("RichTextBoxGroups"), (QStringList{"neck", "head", "hair"}));
  auto& filter = part<QLineEdit>("Filter.ListGroups");
  EXPECT_TRUE(filter.isVisible());
  EXPECT_FALSE(part<QLineEdit>("Filter.ListMaterials").isVisible());
  const std::string page = form().RichTextBoxGroups.text();
  // A shortcut is for the window that is active, which another one may become again meanwhile.
  EXPECT_TRUE(QTest::qWaitFor([&] {
    workshop().activateWindow();
    QTest::keyClick(&workshop(), Qt::Key_F, Qt::ControlModifier);
    return workshop().focusWidget() == &filter;
  }));
  QTest::keyClicks(&filter, "H");
  EXPECT_EQ(seenRows("RichTextBoxGroups"), (QStringList{"head", "hair"}));
  EXPECT_EQ(part<QLabel>("FilterCount.ListGroups").text(), "2 of 3");
  EXPECT_EQ(form().RichTextBoxGroups.text(), page);
  EXPECT_EQ(names(), (Names{"neck", "head", "hair"}));
  // The names to choose from are narrowed with it.
  dispatcher().raise(form().LabelRichRename.clicked);
  auto& list = part<ListView>("ListGroups");
  EXPECT_EQ(list.model()->rowCount(), 2);
  go(list, 0);
  QTest::keyClick(&list, Qt::Key_Delete);
  EXPECT_EQ(names(), (Names{"neck", "hair"}));
  QTest::keyClick(&filter, Qt::Key_Escape);
  EXPECT_EQ(seenRows("RichTextBoxGroups"), (QStringList{"neck", "head", "hair"}));
  EXPECT_TRUE(filter.isVisible());
  // With the listing it goes, and comes up empty.
  QTest::keyClicks(&filter, "x");
  dispatcher().raise(form().CommandListMats.clicked);
  EXPECT_FALSE(filter.isVisible());
  EXPECT_EQ(seenRows("RichTextBoxMaterials"), (QStringList{"skin", "fur"}));
  EXPECT_EQ(filter.text(), "");
}

TEST_F(MeshNamesTest, AClickOnANameMarksItInTheViewsUntilItIsClickedAgain) {
  auto& listing = part<QTreeWidget>("RichTextBoxGroups");
  auto& picture = part<QWidget>("PictureStore");
  ASSERT_TRUE(picture.isVisible());
  const QImage before = picture.grab().toImage();
  const std::string pixels = form().PictureStore.surface().rgbBytes();
  const auto click = [&](int row) {
    QTest::mouseClick(listing.viewport(), Qt::LeftButton, {},
                      listing.visualItemRect(listing.topLevelItem(row)).center());
  };
  const auto bold = [&](int row) { return listing.topLevelItem(row)->font(0).bold(); };
  click(1);
  ASSERT_TRUE(form().Mark);
  EXPECT_EQ(form().Mark->name, "head");
  EXPECT_TRUE(bold(1));
  EXPECT_FALSE(bold(0));
  EXPECT_NE(picture.grab().toImage(), before);
  // The picture that the tools read and save has nothing of it.
  EXPECT_EQ(form().PictureStore.surface().rgbBytes(), pixels);
  click(0);
  EXPECT_EQ(form().Mark->name, "neck");
  EXPECT_TRUE(bold(0));
  click(0);
  EXPECT_FALSE(form().Mark);
  EXPECT_FALSE(bold(0));
  EXPECT_TRUE(listing.selectedItems().isEmpty());
  EXPECT_EQ(picture.grab().toImage(), before);
}

TEST_F(MeshNamesTest, EscapeUnmarksWhereverTheKeysAre) {
  auto& listing = part<QTreeWidget>("RichTextBoxGroups");
  for (QWidget* keys : {static_cast<QWidget*>(&listing), &part<QWidget>("ViewStack")}) {
    listing.setCurrentItem(listing.topLevelItem(2));
    QTest::keyClick(&listing, Qt::Key_Return);
    ASSERT_TRUE(form().Mark);
    EXPECT_EQ(form().Mark->name, "hair");
    QTest::keyClick(keys, Qt::Key_Escape);
    EXPECT_FALSE(form().Mark);
  }
  EXPECT_TRUE(workshop().isVisible());
  // The mark of a material, and a read that takes it away.
  dispatcher().raise(form().CommandListMats.clicked);
  auto& materials = part<QTreeWidget>("RichTextBoxMaterials");
  materials.setCurrentItem(materials.topLevelItem(1));
  QTest::keyClick(&materials, Qt::Key_Return);
  ASSERT_TRUE(form().Mark);
  EXPECT_TRUE(form().Mark->materials);
  dispatcher().raise(form().LabelView.clicked);
  EXPECT_FALSE(form().Mark);
  EXPECT_FALSE(materials.topLevelItem(1)->font(0).bold());
}

}  // namespace
}  // namespace norvik::desktop
