#include "desktop/icons.h"

#include "desktop/theme.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace norvik::desktop {

namespace {

/// Draws a picture's file with two of its colours replaced: that of ink and that of the accent.
class InkEngine : public QIconEngine {
 public:
  explicit InkEngine(QByteArray drawing) : drawing_(std::move(drawing)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QApplication::palette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor ink = palette.color(group, QPalette::ButtonText);
    const QColor accent = mode == QIcon::Disabled ? ink : accentOf(palette);
    QByteArray drawing = drawing_;
    drawing.replace("#010203", ink.name().toLatin1());
    drawing.replace("#040506", accent.name().toLatin1());
    QSvgRenderer renderer(drawing);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    if (mode == QIcon::Disabled) painter->setOpacity(0.5);
    renderer.render(painter, rect);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect({}, size), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return new InkEngine(drawing_); }

 private:
  QByteArray drawing_;
};

}  // namespace

QIcon pictureNamed(const QString& name) {
  QFile file(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new InkEngine(file.readAll()));  // the icon owns its engine
}

}  // namespace norvik::desktop
