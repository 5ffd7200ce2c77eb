#pragma once
// The drawn pictures.

#include <QIcon>
#include <QString>

namespace norvik::desktop {

/// A picture of the program by its name, drawn in the ink and accent of the present palette at any
/// size.
QIcon pictureNamed(const QString& name);

}  // namespace norvik::desktop
