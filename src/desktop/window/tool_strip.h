#pragma once
// The tool pictures.

#include "desktop/maker.h"
#include "front/opening.h"

class QMainWindow;
class QToolBar;

namespace norvik::desktop {

/// The tool bar: a picture appears when its tool can be used.
QToolBar* makeToolStrip(Maker& maker, front::Opening& opening, QMainWindow& window);

/// The row of small entry controls below it: names, numbers and choices of the tool at work.
QWidget* makeEntryRow(Maker& maker, front::Opening& opening, QWidget& parent);

}  // namespace norvik::desktop
