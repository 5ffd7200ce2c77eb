#pragma once
// The pictures of the dial renamer and the small tools in the guide.

#include "desktop/operator.h"
#include "desktop/program.h"

#include <QString>

#include <functional>

namespace norvik::desktop {

/// On the sample figure: the renamer, its map, graph paper, the launcher and the magnifier. The
/// main form shows a mesh behind it.
void takeSmallToolPictures(Program& program, Operator& hand, const QString& drive,
                           const std::function<void(const QString& theme)>& chooseTheme,
                           const std::function<void(const QString& name, QWidget& window)>& take);

}  // namespace norvik::desktop
