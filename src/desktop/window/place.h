#pragma once
// Where the window was last time.

#include "front/settings.h"

#include <string_view>

class QMainWindow;
class QWidget;

namespace norvik::desktop {

inline constexpr std::string_view kWindowSection = "Window";
inline constexpr std::string_view kThemeKey = "Theme";
inline constexpr std::string_view kClosingAnimationKey = "ClosingAnimation";

void restoreWindow(QMainWindow& window, const front::Settings& settings);
void keepWindow(const QMainWindow& window, front::Settings& settings);

/// Moves a window that is shown so that all of it is on the screen that it is on, and makes it
/// smaller where that screen has not the room for it.
void keepOnScreen(QWidget& window);

}  // namespace norvik::desktop
