#include "desktop/window/shape_view.h"

#include "desktop/theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace norvik::desktop {

namespace {

constexpr int kSide = 560;
constexpr double kKeyTurn = 10;  // degrees
constexpr double kKeyZoom = 1.2;
constexpr double kDegreesPerPixel = 0.5;
constexpr double kFilled = 0.8;  // of the window, by a shape that is not zoomed

}  // namespace

ShapeView::ShapeView(channels::PartShape shape, const QString& title, QWidget& parent)
    : QWidget(&parent, Qt::Window), shape_(std::move(shape)) {
  setObjectName(QStringLiteral("ShapeView"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(title);
  setAccessibleName(title);
  setAccessibleDescription(QStringLiteral("The body part at rest, and with the morph over it"));
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(240, 240);
  resize(kSide, kSide);
  frame();
}

/// Takes the middle and the size from the box around both shapes.
void ShapeView::frame() {
  double longest = 0;
  for (std::size_t axis = 0; axis < middle_.size(); ++axis) {
    bool first = true;
    float least = 0;
    float most = 0;
    for (const auto* vertices : {&shape_.rest, &shape_.moved}) {
      for (const channels::Vertex& vertex : *vertices) {
        least = first ? vertex.at(axis) : std::min(least, vertex.at(axis));
        most = first ? vertex.at(axis) : std::max(most, vertex.at(axis));
        first = false;
      }
    }
    middle_.at(axis) = (least + most) / 2;
    longest = std::max(longest, static_cast<double>(most) - static_cast<double>(least));
  }
  size_ = longest > 0 ? longest : 1;
}

QPointF ShapeView::onScreen(const channels::Vertex& vertex) const {
  const double x = static_cast<double>(vertex[0]) - static_cast<double>(middle_[0]);
  const double y = static_cast<double>(vertex[1]) - static_cast<double>(middle_[1]);
  const double z = static_cast<double>(vertex[2]) - static_cast<double>(middle_[2]);
  const double across = qDegreesToRadians(across_);
  const double up = qDegreesToRadians(up_);
  const double turnedX = x * std::cos(across) + z * std::sin(across);
  const double turnedZ = z * std::cos(across) - x * std::sin(across);
  const double turnedY = y * std::cos(up) - turnedZ * std::sin(up);
  const double scale = kFilled * zoom_ * std::min(width(), height()) / size_;
  return {width() / 2.0 + turnedX * scale, height() / 2.0 - turnedY * scale};
}

void ShapeView::draw(QPainter& painter, const std::vector<channels::Vertex>& vertices) const {
  for (const auto& [from, to] : shape_.sides) {
    if (from >= vertices.size() || to >= vertices.size()) continue;
    painter.drawLine(onScreen(vertices[from]), onScreen(vertices[to]));
  }
}

void ShapeView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), palette().base());
  const QColor pale = palette().color(QPalette::Disabled, QPalette::Text);
  const QColor accent = accentOf(palette());
  painter.setPen(pale);
  draw(painter, shape_.rest);
  painter.setPen(accent);
  draw(painter, shape_.moved);
  constexpr int kMargin = 10;
  const QRect text = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  painter.drawText(text, Qt::AlignLeft | Qt::AlignTop, QStringLiteral("With the morph"));
  painter.setPen(pale);
  painter.drawText(text, Qt::AlignRight | Qt::AlignTop, QStringLiteral("At rest"));
  painter.drawText(text, Qt::AlignLeft | Qt::AlignBottom,
                   QStringLiteral("Drag or arrows turn, wheel or + and - zoom, Escape closes"));
}

void ShapeView::turn(double across, double up) {
  constexpr double kSteepest = 90;
  across_ = std::remainder(across_ + across, 360.0);
  up_ = std::clamp(up_ + up, -kSteepest, kSteepest);
  update();
}

void ShapeView::zoom(double times) {
  constexpr double kLeast = 0.1;
  constexpr double kMost = 50;
  zoom_ = std::clamp(zoom_ * times, kLeast, kMost);
  update();
}

void ShapeView::mousePressEvent(QMouseEvent* event) {
  grip_ = event->position();
}

void ShapeView::mouseMoveEvent(QMouseEvent* event) {
  const QPointF moved = event->position() - grip_;
  grip_ = event->position();
  turn(moved.x() * kDegreesPerPixel, moved.y() * kDegreesPerPixel);
}

void ShapeView::wheelEvent(QWheelEvent* event) {
  zoom(event->angleDelta().y() > 0 ? kKeyZoom : 1 / kKeyZoom);
}

void ShapeView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return turn(-kKeyTurn, 0);
    case Qt::Key_Right:
      return turn(kKeyTurn, 0);
    case Qt::Key_Up:
      return turn(0, -kKeyTurn);
    case Qt::Key_Down:
      return turn(0, kKeyTurn);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return zoom(kKeyZoom);
    case Qt::Key_Minus:
      return zoom(1 / kKeyZoom);
    case Qt::Key_Escape:
      close();
      return;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace norvik::desktop
