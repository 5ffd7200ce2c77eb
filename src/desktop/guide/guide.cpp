#include "desktop/guide/guide.h"

#include "desktop/guide/guide_places.h"
#include "desktop/launcher.h"
#include "desktop/window/place.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>

namespace norvik::desktop {

namespace {

QString worded(std::string_view place) {
  return QString::fromUtf8(place.data(), static_cast<qsizetype>(place.size()));
}

QString placeNamed(const QString& window, const QString& control) {
  return worded(guidePlaceOf(window.toStdString(), control.toStdString()));
}

/// The window that a menu belongs to, through the menus that it unfolds from.
QWidget* windowBehind(QWidget* widget) {
  while (qobject_cast<QMenu*>(widget) != nullptr && widget->parentWidget() != nullptr) {
    widget = widget->parentWidget();
  }
  return widget->window();
}

}  // namespace

QString guidePlaceOf(const QWidget* widget) {
  if (widget == nullptr) return worded(kGuideStart);
  const QWidget& window = *widget->window();
  for (const QWidget* inner = widget; inner != nullptr && inner != &window;
       inner = inner->parentWidget()) {
    if (inner->objectName().isEmpty()) continue;
    if (const QString place = placeNamed(window.objectName(), inner->objectName());
        !place.isEmpty()) {
      return place;
    }
  }
  for (const GuidePlace& sign : guideSigns()) {
    if (worded(sign.window) != window.objectName()) continue;
    const auto* seen = window.findChild<QWidget*>(worded(sign.control));
    if (seen != nullptr && seen->isVisible()) return worded(sign.place);
  }
  const QString place = placeNamed(window.objectName(), {});
  return place.isEmpty() ? worded(kGuideStart) : place;
}

Guide::Guide(DesktopFrontEnd& frontEnd, QWidget& mainWindow)
    : frontEnd_(frontEnd), mainWindow_(mainWindow) {
  frontEnd_.setGuide([this] { return showHere(); });
  qApp->installEventFilter(this);
}

Guide::~Guide() {
  frontEnd_.setGuide({});
}

bool Guide::showHere() {
  QWidget* focus = QApplication::focusWidget();
  QWidget* over = QApplication::activeWindow();
  if (over == nullptr) over = &mainWindow_;
  return show(guidePlaceOf(focus == nullptr ? over : focus), *over);
}

/// The guide belongs to the window that it is asked from: while a modal one waits, it alone and
/// what belongs to it take keys.
bool Guide::show(const QString& place, QWidget& over) {
  const QString folder = guideFolder();
  if (folder.isEmpty()) return false;
  if (window_ == nullptr) {
    window_ = new GuideWindow(folder, &over);
  } else if (window_->parentWidget() != &over && window_ != &over) {
    window_->setParent(&over, window_->windowFlags());
  }
  // The pictures are as wide as the window is.
  window_->show();
  keepOnScreen(*window_);
  window_->raise();
  window_->activateWindow();
  window_->showPlace(place);
  return true;
}

/// F1 where no entry of a menu bar has it for a shortcut.
bool Guide::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  auto* widget = qobject_cast<QWidget*>(watched);
  if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier || widget == nullptr) {
    return false;
  }
  auto* menu = qobject_cast<QMenu*>(widget);
  if (menu == nullptr) return show(guidePlaceOf(widget), *widget->window());
  QWidget* const window = windowBehind(menu);
  const QAction* const entry = menu->activeAction();
  QString place;
  if (entry != nullptr) place = placeNamed(window->objectName(), entry->objectName());
  if (place.isEmpty()) place = guidePlaceOf(window);
  while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
  return show(place, *window);
}

}  // namespace norvik::desktop
