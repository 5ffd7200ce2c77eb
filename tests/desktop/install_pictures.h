#pragma once
// The pictures of the installer and the file tools in the guide.

#include "desktop/operator.h"

#include <QString>

#include <functional>

namespace norvik::desktop {

/// Works through the installer with files of the sample figure, and through the windows of the two
/// file tools. `drive` is the host folder of drive C. Nothing of the sample is changed.
void takeInstallPictures(Program& program, Operator& hand, const QString& drive,
                         const std::function<void(const QString& theme)>& chooseTheme,
                         const std::function<void(const QString& name, QWidget* window)>& take);

}  // namespace norvik::desktop
