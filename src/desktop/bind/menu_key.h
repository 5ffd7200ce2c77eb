#pragma once
// The keys that stand for a right click.

#include <QKeyEvent>

namespace norvik::desktop {

inline bool isMenuKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_Menu ||
         (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

}  // namespace norvik::desktop
