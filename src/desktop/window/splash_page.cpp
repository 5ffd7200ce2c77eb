#include "desktop/window/splash_page.h"

#include "desktop/icons.h"
#include "desktop/words.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

/// Draws a picture as large as its place allows.
class Picture : public QWidget {
 public:
  explicit Picture(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(120, 100);
    setMaximumHeight(340);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    constexpr QSize kDrawn(320, 300);
    QRect place({}, kDrawn.scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    QPainter painter(this);
    painter.setOpacity(0.9);
    pictureNamed(QStringLiteral("splash")).paint(&painter, place);
  }
};

}  // namespace

QWidget* makeSplashPage(front::Opening& opening, QWidget& parent) {
  auto* page = new QWidget(&parent);
  auto* column = new QVBoxLayout(page);
  column->addStretch(1);
  column->addWidget(new Picture(page), 6);
  auto* name = new QLabel(shown(opening.caption()), page);
  QFont font = name->font();
  font.setPointSizeF(font.pointSizeF() * 1.8);
  font.setWeight(QFont::Light);
  name->setFont(font);
  column->addSpacing(8);
  column->addWidget(name, 0, Qt::AlignHCenter);
  auto* hint = new QLabel(
      QStringLiteral("Open a figure with File, Open (Ctrl+O), or drop a file here."), page);
  hint->setForegroundRole(QPalette::PlaceholderText);
  column->addWidget(hint, 0, Qt::AlignHCenter);
  column->addStretch(2);
  return page;
}

}  // namespace norvik::desktop
