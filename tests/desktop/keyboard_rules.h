#pragma once
// What holds for each window, so that it can be used without a mouse and read out.

#include <QString>
#include <QStringList>
#include <QWidget>

#include <vector>

namespace norvik::desktop {

/// What a screen reader says of a widget: its accessible name, the label in front of it, or its own
/// text.
QString spokenName(const QWidget& widget);

/// The controls of a window that Tab should reach, in no order.
std::vector<QWidget*> tabStops(QWidget& window);

/// Each of these says what is wrong with a window that has the keys, a line for each fault.
QStringList namelessControls(QWidget& window);
/// Tab comes to each control once and back to the first; of two controls one above the other the
/// upper one is first, of two side by side the left one. What lies over the window is a page of its
/// own.
QStringList brokenTabOrder(QWidget& window);
/// Two of what is on view answer to one key.
QStringList sharedKeys(QWidget& window);
/// A button without words that has no tip.
QStringList picturesWithoutTip(QWidget& window);
/// What does not fit when the window is as large as a small screen lets it be.
QStringList crampedControls(QWidget& window, const QSize& room);

}  // namespace norvik::desktop
