#include "desktop/window/place.h"

#include <QMainWindow>
#include <QSplitter>

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
  }
  for (QSplitter* splitter : window.findChildren<QSplitter*>()) {
    const QByteArray state = read(splitter->objectName().toStdString());
    if (!state.isEmpty()) splitter->restoreState(state);
  }
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
