#pragma once
// Escape in one control, which means less there than in its window.

#include <QShortcut>
#include <QWidget>

#include <functional>

namespace norvik::desktop {

/// Has Escape leave a control, or put it away, instead of the window that it is in.
inline void onEscape(QWidget& widget, std::function<void()> act) {
  auto* key = new QShortcut(QKeySequence(Qt::Key_Escape), &widget);
  key->setContext(Qt::WidgetShortcut);
  QObject::connect(key, &QShortcut::activated, &widget, std::move(act));
}

}  // namespace norvik::desktop
