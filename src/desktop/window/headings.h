#pragma once
// The looks of headings and labels.

#include <QString>

class QLabel;
class QWidget;

namespace norvik::desktop {

inline constexpr int kPaneMargin = 8;

/// The heading of a list.
void makeHeading(QLabel& label);

/// The title of a pane.
QLabel* makePaneTitle(const char* title, QWidget& parent);

/// The name of a file at the head of a pane: it gives way to the width of the pane.
void makeFileHeading(QLabel& label, const QString& accessibleName);

}  // namespace norvik::desktop
