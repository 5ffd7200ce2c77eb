#include "desktop/pass_stop.h"

#include "front/front_end.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace norvik::desktop {

QAbstractButton& PassStop::addButton(QWidget& parent) {
  auto* button = new QToolButton(&parent);
  button->setObjectName(QStringLiteral("CancelPass"));
  button->setText(QStringLiteral("Cancel"));
  button->setToolTip(QStringLiteral("Ends the work; your files stay as they were (Esc)"));
  button->setAccessibleName(QStringLiteral("Cancel the work"));
  // Tools keep the keys where they are, and Escape does without them.
  button->setFocusPolicy(Qt::NoFocus);
  button->hide();
  QObject::connect(button, &QToolButton::clicked, this, [this] { request(); });
  buttons_.emplace_back(button);
  return *button;
}

void PassStop::begin() {
  if (running_++ == 0) requested_ = false;
}

void PassStop::end() {
  if (--running_ > 0) return;
  requested_ = false;
  for (const auto& button : buttons_) {
    if (button != nullptr) button->hide();
  }
}

void PassStop::request() {
  requested_ = running();
}

void PassStop::check() {
  if (!requested_ || letsLive_) return;
  stopped_ = true;
  throw front::ToolStopped{};
}

bool PassStop::takeStopped() {
  return std::exchange(stopped_, false);
}

bool PassStop::listens() const {
  return running() && std::any_of(buttons_.begin(), buttons_.end(), [](const auto& button) {
           return button != nullptr && button->isVisible();
         });
}

void PassStop::processEvents() {
  const bool lived = std::exchange(letsLive_, true);
  if (!lived && listens()) {
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
  } else {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  letsLive_ = lived;
}

/// A mouse event goes to the window first and then to the widget under it. A button that was
/// pressed sees the release wherever it happens.
bool PassStop::isForButton(const QObject& watched, const QEvent& event) const {
  const QObject* target = &watched;
  if (watched.isWindowType()) {
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    target = QApplication::widgetAt(mouse.globalPosition().toPoint());
  }
  return std::any_of(buttons_.begin(), buttons_.end(), [&](const auto& button) {
    return button != nullptr && (button == target || button->isDown());
  });
}

bool PassStop::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) request();
      return true;
    case QEvent::ShortcutOverride:
      // Then it is no shortcut of a menu.
      event->accept();
      return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
      return !isForButton(*watched, *event);
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return true;
    default:
      return QObject::eventFilter(watched, event);
  }
}

}  // namespace norvik::desktop
