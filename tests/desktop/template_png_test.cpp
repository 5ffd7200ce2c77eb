#include "desktop/template_png.h"

#include "desktop/bench.h"
#include "desktop/window/mesh_window.h"
#include "front/form_obj.h"
#include "graphics/stretched_bmp.h"

#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace norvik::desktop {

namespace {

class TemplatePngTest : public Bench<front::FormOBJ> {
 protected:
  QString host(const char* name) const {
    return QString::fromStdString(folder.path()) + QLatin1Char('/') + QString::fromLatin1(name);
  }
};

TEST_F(TemplatePngTest, HasOpaqueLinesOnATransparentGround) {
  graphics::Surface sheet(4, 4);
  sheet.line({0, 1}, {3, 1}, graphics::kBlack);
  saveTransparentTemplate(session, sheet, 9, "C:\\m.png");
  QImage image(host("m.png"));
  ASSERT_EQ(image.size(), QSize(9, 9));
  ASSERT_TRUE(image.hasAlphaChannel());
  image = image.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < 9; ++y) {
    // Row y shows row y * 4 / 9 of the sheet: 3 and 4 show row 1.
    const bool line = y == 3 || y == 4;
    for (int x = 0; x < 9; ++x) {
      EXPECT_EQ(image.pixel(x, y), line ? qRgba(0, 0, 0, 255) : qRgba(0, 0, 0, 0)) << x << " " << y;
    }
  }
  EXPECT_FALSE(QFile::exists(host("MapSave.tmp")));
}

TEST_F(TemplatePngTest, LeavesWhatItCannotReplace) {
  const graphics::Surface sheet(4, 4);
  saveTransparentTemplate(session, sheet, 2, "C:\\m.png");
  QFile old(host("m.png"));
  ASSERT_TRUE(old.open(QIODevice::ReadOnly));
  const QByteArray before = old.readAll();
  old.close();
  disk.setReadOnly("C:\\m.png", true);
  EXPECT_THROW(saveTransparentTemplate(session, sheet, 3, "C:\\m.png"), text::FileError);
  EXPECT_THROW(saveTransparentTemplate(session, sheet, 3, "C:\\none\\m.png"), text::FileError);
  ASSERT_TRUE(old.open(QIODevice::ReadOnly));
  EXPECT_EQ(old.readAll(), before);
  EXPECT_FALSE(QFile::exists(host("MapSave.tmp")));
}

TEST_F(TemplatePngTest, IsASecondButtonBesideTheStatedPicture) {
  form.setLoaded(true);
  MeshWindow workshop(
      maker, session, form, frontEnd, [] {}, nullptr);
  workshop.show();
  auto& png = *workshop.findChild<QPushButton*>(QStringLiteral("SavePng"));
  auto& bmp = *workshop.findChild<QPushButton*>(QStringLiteral("SaveBmp"));
  std::string keys;
  form.TextMapSize.key.add([&](const std::string& key) { keys += key; });
  opening.LabelOBJFileName.setCaption("C:\\mesh.obj");
  form.PictureUVMap.resize(580, 580);
  form.PictureUVMap.surface().line({0, 0}, {579, 579}, graphics::kBlack);
  form.TextMapSize.setText("Enter Map Size");
  form.TextMapSize.show();
  dispatcher.sync();
  EXPECT_TRUE(png.isVisible());
  EXPECT_FALSE(png.isEnabled());
  EXPECT_FALSE(bmp.isEnabled());
  form.TextMapSize.setText("29");
  dispatcher.sync();
  ASSERT_TRUE(png.isEnabled());
  png.click();
  const QImage image = QImage(host("mesh.png")).convertToFormat(QImage::Format_ARGB32);
  ASSERT_EQ(image.size(), QSize(29, 29));
  for (int i = 0; i < 29; ++i) EXPECT_EQ(qAlpha(image.pixel(i, i)), 255);
  EXPECT_EQ(qAlpha(image.pixel(0, 28)), 0);
  EXPECT_TRUE(form.TextMapSize.visible()) << "the stated picture can still be saved";
  EXPECT_EQ(form.MapSaved, 0);
  EXPECT_EQ(keys, "");
  bmp.click();
  EXPECT_EQ(keys, "Enter");
}

}  // namespace

}  // namespace norvik::desktop
