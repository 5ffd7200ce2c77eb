#include "desktop/bind/widget_binding.h"

#include "desktop/bind/drag.h"
#include "desktop/bind/drop_mark.h"
#include "desktop/bind/menu_key.h"
#include "desktop/words.h"
#include "front/form.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTimer>

namespace norvik::desktop {

namespace {

front::MouseButton heldButton(const QMouseEvent& event) {
  if (event.buttons().testFlag(Qt::RightButton)) return front::MouseButton::right;
  if (event.buttons().testFlag(Qt::LeftButton)) return front::MouseButton::left;
  return front::MouseButton::none;
}

bool isClick(const QMouseEvent& event) {
  return event.button() == Qt::LeftButton || event.button() == Qt::RightButton;
}

}  // namespace

WidgetBinding::WidgetBinding(Dispatcher& dispatcher, front::Control& control, QWidget& widget,
                             Clicks clicks)
    : Binding(dispatcher, control), widget_(&widget), clicks_(clicks), ownTip_(widget.toolTip()) {
  widget.setObjectName(QString::fromStdString(control.name()));
  const bool takesRight = control.pressed.hasHandlers() || control.released.hasHandlers();
  if (takesRight) widget.setContextMenuPolicy(Qt::NoContextMenu);
  if (control.dropped.hasHandlers()) markAsTarget(widget);
  watch(widget);
}

void WidgetBinding::watch(QWidget& widget) {
  widget.installEventFilter(this);
  widget.setAcceptDrops(true);
  if (control().moved.hasHandlers()) widget.setMouseTracking(true);
}

void WidgetBinding::setShower(std::function<void(bool)> shower) {
  shower_ = std::move(shower);
  update();
}

void WidgetBinding::refresh() {
  if (!widget_) return;
  widget_->setEnabled(control().enabled());
  showTip();
  if (shower_) {
    shower_(control().visible());
  } else {
    widget_->setVisible(control().visible());
  }
}

/// A control without a tip leaves the widget its own, which some widgets change by themselves.
void WidgetBinding::showTip() {
  const std::string& tip = control().tip();
  if (tip == shownTip_) return;
  widget_->setToolTip(tip.empty() ? ownTip_ : shown(tip));
  shownTip_ = tip;
}

bool WidgetBinding::eventFilter(QObject* watched, QEvent* event) {
  // A filter sees what is meant for a disabled widget too.
  if (!widget_ || !widget_->isEnabled() || refreshing()) {
    return QObject::eventFilter(watched, event);
  }
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      doubleClick_ = false;
      return mousePressed(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease: {
      // The second release of a double click belongs to it.
      if (std::exchange(doubleClick_, false)) return false;
      return mouseReleased(*static_cast<QMouseEvent*>(event));
    }
    case QEvent::MouseButtonDblClick:
      doubleClick_ = true;
      return mouseDoubleClicked(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
      mouseMoved(*static_cast<QMouseEvent*>(event));
      return false;
    case QEvent::KeyPress:
      return keyPressed(*static_cast<QKeyEvent*>(event));
    case QEvent::FocusIn:
      control().form().setFocus(control());
      return false;
    case QEvent::DragEnter:
    case QEvent::DragMove:
      return dragOver(*static_cast<QDropEvent*>(event));
    case QEvent::Drop:
      return dropped(*static_cast<QDropEvent*>(event));
    default:
      return QObject::eventFilter(watched, event);
  }
}

QPoint WidgetBinding::placeOf(const QPointF& place) const {
  return place.toPoint();
}

front::Mouse WidgetBinding::mouseOf(const QMouseEvent& event) const {
  const QPoint place = placeOf(event.position());
  const bool right = event.button() == Qt::RightButton;
  return {right ? front::MouseButton::right : front::MouseButton::left, place.x(), place.y()};
}

bool WidgetBinding::mousePressed(const QMouseEvent& event) {
  if (isClick(event)) raise(control().pressed, mouseOf(event));
  return false;
}

bool WidgetBinding::mouseReleased(const QMouseEvent& event) {
  if (!isClick(event)) return false;
  const bool inside = widget_->rect().contains(event.position().toPoint());
  const bool click = clicks_ == Clicks::fromMouse && event.button() == Qt::LeftButton && inside;
  if (clicks_ == Clicks::fromMouse && !inside) return false;
  raise(control().released, mouseOf(event));
  if (click) raise(control().clicked);
  return false;
}

bool WidgetBinding::mouseDoubleClicked(const QMouseEvent& event) {
  if (event.button() == Qt::LeftButton) raise(control().doubleClicked);
  return false;
}

void WidgetBinding::mouseMoved(const QMouseEvent& event) {
  if (!control().moved.hasHandlers()) return;
  const QPoint place = placeOf(event.position());
  raise(control().moved, front::Mouse{heldButton(event), place.x(), place.y()});
}

void WidgetBinding::clickByKey() {
  raise(control().pressed, front::Mouse{});
  raise(control().released, front::Mouse{});
  raise(control().clicked);
}

bool WidgetBinding::keyPressed(const QKeyEvent& event) {
  if (control().key.hasHandlers()) {
    const std::string name = keyName(event);
    if (!name.empty()) raise(control().key, name);
    // A dialog says itself what Escape does.
    const bool inDialog = qobject_cast<const QDialog*>(widget_->window()) != nullptr;
    if (name == "Enter" || (name == "Escape" && !inDialog)) return true;
  }
  const bool takesRight = clicks_ == Clicks::fromMouse || control().pressed.hasHandlers() ||
                          control().released.hasHandlers();
  if (takesRight && isMenuKey(event)) {
    raise(control().pressed, front::Mouse{front::MouseButton::right, 0, 0});
    raise(control().released, front::Mouse{front::MouseButton::right, 0, 0});
    return true;
  }
  if (clicks_ != Clicks::fromMouse) return false;
  const auto key = event.key();
  if (key == Qt::Key_Space && event.modifiers() == Qt::NoModifier) {
    clickByKey();
    return true;
  }
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    // The double click of the keyboard, where there is one.
    if (control().doubleClicked.hasHandlers()) {
      raise(control().doubleClicked);
    } else {
      clickByKey();
    }
    return true;
  }
  return false;
}

bool WidgetBinding::dragOver(QDropEvent& event) const {
  const QMimeData& data = *event.mimeData();
  const bool wanted = carriesControl(data) && control().dropped.hasHandlers();
  const bool file = carriesFile(data) && control().filesDropped.hasHandlers();
  if (!wanted && !file) return false;
  if (file) {
    // A file manager that proposes to move a file would delete it behind the drop.
    event.setDropAction(Qt::CopyAction);
    event.accept();
  } else {
    event.acceptProposedAction();
  }
  return true;
}

bool WidgetBinding::dropped(const QDropEvent& event) {
  const QMimeData& data = *event.mimeData();
  const front::Session& session = dispatcher().session();
  // The drag is over first: a handler may put up a box.
  if (front::Control* source = draggedControl(data, session); source != nullptr) {
    if (!control().dropped.hasHandlers()) return false;
    QTimer::singleShot(0, this, [this, source] { raise(control().dropped, *source); });
    return true;
  }
  const std::vector<std::string> files = droppedFiles(data, session);
  if (files.empty() || !control().filesDropped.hasHandlers()) return false;
  QTimer::singleShot(0, this, [this, files] { raise(control().filesDropped, files); });
  return true;
}

std::string keyName(const QKeyEvent& event) {
  std::string name;
  switch (event.key()) {
    case Qt::Key_Control:
    case Qt::Key_Shift:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    // It leads on to the next control, and is no character of this one.
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return {};
    case Qt::Key_Return:
    case Qt::Key_Enter:
      name = "Enter";
      break;
    case Qt::Key_Escape:
      name = "Escape";
      break;
    case Qt::Key_Space:
      name = "Space";
      break;
    case Qt::Key_Delete:
      name = "Delete";
      break;
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (!event.modifiers().testFlag(Qt::AltModifier)) return {};
      return event.key() == Qt::Key_Up ? "Alt+Up" : "Alt+Down";
    default:
      if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F12) {
        name = "F" + std::to_string(event.key() - Qt::Key_F1 + 1);
      } else if (event.modifiers().testFlag(Qt::ControlModifier)) {
        name = QString(QChar(static_cast<char16_t>(event.key()))).toLower().toStdString();
      } else {
        return typed(event.text());
      }
  }
  return event.modifiers().testFlag(Qt::ControlModifier) ? "Ctrl+" + name : name;
}

}  // namespace norvik::desktop
