#include "desktop/pose_pictures.h"

#include "desktop/bind/list_view.h"

#include <QLineEdit>
#include <QtTest>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;

/// A form's own widget: two forms may have a control of one name.
QWidget& of(Operator& hand, const QString& form, const QString& control) {
  auto* widget = hand.find(form).findChild<QWidget*>(control);
  if (widget == nullptr) giveUp("no control " + control.toStdString());
  return *widget;
}

void clickRow(QWidget& list, int row, Qt::MouseButton button = Qt::LeftButton) {
  auto& view = dynamic_cast<ListView&>(list);
  const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
  QTest::mouseClick(view.viewport(), button, {}, place);
}

void chooseRow(QWidget& list, int row) {
  auto& view = dynamic_cast<ListView&>(list);
  const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
}

void takeEditors(Operator& hand, const TakePicture& take) {
  const QString form = u"FormPZ2"_s;
  hand.menu({u"MenuCR2Tools"_s, u"MenuPoseFile"_s});
  hand.find(form).move(0, 0);
  for (const int row : {4, 5}) {
    clickRow(of(hand, form, u"ListActorsPZ2"_s), row);
    chooseRow(of(hand, form, u"ListActorsPZ2"_s), row);
  }
  take(u"pose-builder"_s, hand.find(form));
  QTest::mouseClick(&of(hand, form, u"LabelCancelPZ2"_s), Qt::LeftButton);

  hand.menu({u"MenuCR2Tools"_s, u"menuMatFile"_s});
  hand.find(form).move(0, 0);
  clickRow(of(hand, form, u"ListMaterialsMAT"_s), 3);
  chooseRow(of(hand, form, u"ListMaterialsMAT"_s), 3);
  clickRow(of(hand, form, u"ListMaterialsMAT"_s), 1);
  QTest::mouseClick(&of(hand, form, u"CheckIncludeMaps"_s), Qt::LeftButton, {}, {10, 10});
  take(u"mat-builder"_s, hand.find(form));
  QTest::mouseClick(&of(hand, form, u"LabelCancelPZ2"_s), Qt::LeftButton);
}

/// Gives the morph in a row a value and saves; takes a picture if it has a name.
void makeMor(Operator& hand, int row, const QString& value, const QString& path,
             const TakePicture& take, const QString& picture) {
  const QString form = u"FormMOR"_s;
  hand.menu({u"MenuCR2Tools"_s, u"MenuMor"_s});
  hand.find(form).move(0, 0);
  clickRow(of(hand, form, u"ListMorphs"_s), row);
  auto& edit = dynamic_cast<QLineEdit&>(of(hand, form, u"TextValue"_s));
  QTest::mouseClick(&edit, Qt::LeftButton);
  edit.selectAll();
  QTest::keyClicks(&edit, value);
  QTest::keyClick(&edit, Qt::Key_Return);
  if (!picture.isEmpty()) take(picture, hand.find(form));
  hand.willChoose(path);
  QTest::mouseClick(&of(hand, form, u"LabelDone"_s), Qt::LeftButton);
}

}  // namespace

void takePosePictures(Operator& hand, const QString& folder, const TakePicture& take) {
  takeEditors(hand, take);
  const QString first = folder + u"/long-head.pz2"_s;
  const QString second = folder + u"/flat-face.pz2"_s;
  makeMor(hand, 1, u".5"_s, first, take, u"mor-builder"_s);
  makeMor(hand, 2, u"1"_s, second, take, {});

  const QString form = u"FormPZ2Combine"_s;
  hand.willChoose(first);
  hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
  hand.menu({u"MenuCR2Tools"_s, u"menuCombinePZ2"_s});
  hand.find(form).move(0, 0);
  hand.willChoose(second);
  QTest::mouseClick(&of(hand, form, u"LabelOpenSecond"_s), Qt::LeftButton);
  clickRow(of(hand, form, u"ListFile2"_s), 2);
  clickRow(of(hand, form, u"ListFile1"_s), 1);
  take(u"welder"_s, hand.find(form));
  QTest::mouseClick(&of(hand, form, u"LabelCancel"_s), Qt::LeftButton);
}

}  // namespace norvik::desktop
