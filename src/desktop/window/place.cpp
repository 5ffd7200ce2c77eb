#include "desktop/window/place.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QSplitter>

#include <algorithm>

namespace norvik::desktop {

namespace {

constexpr std::string_view kGeometry = "Geometry";

}  // namespace

void restoreWindow(QMainWindow& window, const front::Settings& settings) {
  const auto read = [&](std::string_view key) {
    return QByteArray::fromBase64(QByteArray::fromStdString(settings.get(kWindowSection, key, "")));
  };
  if (const QByteArray geometry = read(kGeometry); !geometry.isEmpty()) {
    window.restoreGeometry(geometry);
    // The full screen is a choice of each time.
    window.setWindowState(window.windowState() & ~Qt::WindowStates(Qt::WindowFullScreen));
  }
  for (QSplitter* splitter : window.findChildren<QSplitter*>()) {
    const QByteArray state = read(splitter->objectName().toStdString());
    if (!state.isEmpty()) splitter->restoreState(state);
  }
}

void keepOnScreen(QWidget& window) {
  const auto state = window.windowState();
  if (state.testFlag(Qt::WindowMaximized) || state.testFlag(Qt::WindowFullScreen)) return;
  const QScreen* screen = QGuiApplication::screenAt(window.frameGeometry().center());
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  const QRect room = screen->availableGeometry();
  const QSize frame = window.frameGeometry().size() - window.size();
  const QSize most = room.size() - frame;
  // A layout may ask for more than there is: then it gives way.
  const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
  if (least.width() > most.width() || least.height() > most.height()) {
    window.setMinimumSize(least.boundedTo(most));
  }
  const QSize size = window.size().boundedTo(most);
  if (size != window.size()) window.resize(size);
  const QRect wanted(window.pos(), size + frame);
  const int left =
      std::max(room.left(), std::min(wanted.left(), room.right() - wanted.width() + 1));
  const int top = std::max(room.top(), std::min(wanted.top(), room.bottom() - wanted.height() + 1));
  if (QPoint(left, top) != window.pos()) window.move(left, top);
}

void keepWindow(const QMainWindow& window, front::Settings& settings) {
  front::Settings::Values values{
      {std::string{kGeometry}, window.saveGeometry().toBase64().toStdString()}};
  for (const QSplitter* splitter : window.findChildren<QSplitter*>()) {
    values.emplace_back(splitter->objectName().toStdString(),
                        splitter->saveState().toBase64().toStdString());
  }
  settings.set(kWindowSection, values);
}

}  // namespace norvik::desktop
