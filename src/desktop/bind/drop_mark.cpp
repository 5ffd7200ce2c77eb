#include "desktop/bind/drop_mark.h"

#include "desktop/theme.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

namespace norvik::desktop {

namespace {

constexpr const char* kTarget = "takesControls";

/// Lies over a target and lets the mouse through.
class Outline : public QWidget {
 public:
  explicit Outline(QWidget& target) : QWidget(&target) {
    setObjectName(QStringLiteral("DropOutline"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(target.rect());
    target.installEventFilter(this);
    show();
    raise();
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto type = event->type();
    if (type == QEvent::DragEnter) setUnderMouse(true);
    if (type == QEvent::DragLeave || type == QEvent::Drop) setUnderMouse(false);
    return QWidget::eventFilter(watched, event);
  }

  void paintEvent(QPaintEvent*) override {
    constexpr qreal kWidth = 2;
    constexpr qreal kRound = 5;
    const QColor accent = accentOf(palette());
    QColor ground = accent;
    ground.setAlphaF(underMouse_ ? 0.35F : 0.12F);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(accent, kWidth, underMouse_ ? Qt::SolidLine : Qt::DashLine));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRound, kRound);
  }

 private:
  void setUnderMouse(bool under) {
    underMouse_ = under;
    update();
  }

  bool underMouse_ = false;
};

}  // namespace

void markAsTarget(QWidget& widget) {
  widget.setProperty(kTarget, true);
}

DropMarks::DropMarks() {
  for (QWidget* widget : QApplication::allWidgets()) {
    const bool target = widget->isVisible() && widget->property(kTarget).toBool();
    if (target) outlines_.emplace_back(new Outline(*widget));  // its target owns it
  }
}

DropMarks::~DropMarks() {
  for (const QPointer<QWidget>& outline : outlines_) delete outline.data();
}

}  // namespace norvik::desktop
