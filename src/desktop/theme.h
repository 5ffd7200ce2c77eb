#pragma once
// Light and dark.

#include "front/colours.h"

#include <QColor>
#include <QPalette>

#include <string_view>

class QStyle;
class QWidget;

namespace norvik::desktop {

enum class Theme { system, light, dark };

std::string_view themeName(Theme theme);
Theme themeNamed(std::string_view name);

/// The colours of a theme; `system` is the palette that the desktop came with, which decides
/// between the two.
QPalette paletteOf(Theme theme, const QPalette& system);

/// The style of all widgets; who sets it owns it.
QStyle* makeStyle();

bool isDark(const QPalette& palette);

/// A colour of the tools as it is.
QColor toColor(front::Colour colour);

/// Writes a widget's text in a colour of the tools. The colours that mean something get the shade
/// that means it in the present theme; all stay readable on the ground that they stand on.
void paintText(QWidget& widget, front::Colour colour);

/// What draws attention in the present theme.
QColor accentOf(const QPalette& palette);

}  // namespace norvik::desktop
