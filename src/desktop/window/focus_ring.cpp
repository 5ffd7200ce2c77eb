#include "desktop/window/focus_ring.h"

#include "desktop/window/form_window.h"
#include "desktop/window/main_window.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>

namespace norvik::desktop {

namespace {

constexpr int kAround = 2;  // pixels

class Ring : public QWidget {
 public:
  explicit Ring(QWidget* window) : QWidget(window) {
    setObjectName(QStringLiteral("FocusRing"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    constexpr qreal kRound = 3;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), kAround));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRound, kRound);
  }
};

bool isOfAForm(const QWidget& window) {
  return dynamic_cast<const MainWindow*>(&window) != nullptr ||
         dynamic_cast<const FormWindow*>(&window) != nullptr;
}

}  // namespace

FocusRing::FocusRing() {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

FocusRing::~FocusRing() {
  delete ring_;
}

void FocusRing::follow(QWidget* now) {
  for (const QPointer<QWidget>& widget : watched_) {
    if (widget) widget->removeEventFilter(this);
  }
  watched_.clear();
  delete ring_;
  around_ = now;
  // An entry shows it by its own frame.
  const bool shown = now != nullptr && qobject_cast<QLineEdit*>(now) == nullptr &&
                     isOfAForm(*now->window()) && now != now->window();
  if (!shown) return;
  // What lies around the control moves it too, as a list that scrolls does.
  for (QWidget* widget = now; widget != now->window(); widget = widget->parentWidget()) {
    widget->installEventFilter(this);
    watched_.append(widget);
  }
  ring_ = new Ring(now->window());
  place();
}

void FocusRing::place() {
  if (!ring_ || !around_) return;
  const QPoint corner = around_->mapTo(around_->window(), QPoint(0, 0));
  ring_->setGeometry(QRect(corner, around_->size()).adjusted(-kAround, -kAround, kAround, kAround));
  ring_->setVisible(around_->isVisible());
  ring_->raise();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
      place();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace norvik::desktop
