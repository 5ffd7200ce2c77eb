#pragma once
// Where the window was last time.

#include "front/settings.h"

#include <string_view>

class QMainWindow;

namespace norvik::desktop {

inline constexpr std::string_view kWindowSection = "Window";
inline constexpr std::string_view kThemeKey = "Theme";

void restoreWindow(QMainWindow& window, const front::Settings& settings);
void keepWindow(const QMainWindow& window, front::Settings& settings);

}  // namespace norvik::desktop
