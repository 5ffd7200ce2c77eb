#pragma once
// What travels with the mouse between the controls, and from the desktop into the window.

#include "front/session.h"

#include <string>

class QMimeData;
class QString;
class QWidget;

namespace norvik::desktop {

/// Carries a control until the mouse lets go; the caption travels along, and what takes a control
/// is outlined.
void dragControl(const front::Control& control, QWidget& from, const QString& caption);

/// Whether a control of this program is carried, or files of the desktop.
bool carriesControl(const QMimeData& data);
bool carriesFile(const QMimeData& data);

/// The control that is carried; null for anything else.
front::Control* draggedControl(const QMimeData& data, const front::Session& session);

/// The system path of the first file that is carried; empty if no drive holds it.
std::string droppedFile(const QMimeData& data, const front::Session& session);
/// All of them; those that lie on no drive are left out.
std::vector<std::string> droppedFiles(const QMimeData& data, const front::Session& session);

}  // namespace norvik::desktop
