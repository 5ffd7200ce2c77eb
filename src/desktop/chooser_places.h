#pragma once
// The folders at the side of a file dialog.

#include "front/session.h"

#include <QStringList>

namespace norvik::desktop {

/// The folders of Poser's libraries, and those that files were chosen in last; host names.
QStringList chooserPlaces(const front::Session& session);

/// Remembers the folder of a chosen file, for the next dialogs and the next start.
void rememberPlace(front::Session& session, const QString& file);

}  // namespace norvik::desktop
