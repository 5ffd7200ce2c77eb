#pragma once
// What a tool says about its next step.

#include <QLabel>

namespace norvik::desktop {

/// A line of quiet words for the next step of a tool; it wraps where there is no room.
inline QLabel* makeHint(const QString& text, QWidget& parent) {
  auto* hint = new QLabel(text, &parent);
  hint->setWordWrap(true);
  hint->setForegroundRole(QPalette::PlaceholderText);
  return hint;
}

}  // namespace norvik::desktop
