#pragma once
// The layout of a window that says what is to be done, with its parts side by side below.

#include "desktop/maker.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <initializer_list>
#include <utility>

namespace norvik::desktop {

/// Lays the window out: the hint across it, below it the parts, each with its share of the width.
/// The column takes what is to stand below them.
QVBoxLayout& laySideBySide(Maker& maker, front::Label& hint, QWidget& window,
                           std::initializer_list<std::pair<QLayout*, int>> parts);

}  // namespace norvik::desktop
