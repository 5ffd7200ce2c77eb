#pragma once
// The panes of the main window.

#include "desktop/maker.h"
#include "front/opening.h"

#include <vector>

class QWidget;

namespace norvik::desktop {

class PendingPath;

/// Left: the figure that is worked on, its parts and its materials.
QWidget* makeDestinationPane(Maker& maker, front::Opening& opening, QWidget& parent);

/// Right: where morphs come from, and the channels.
QWidget* makeSourcePane(Maker& maker, front::Opening& opening, QWidget& parent);

/// Below: the references of the figure. The boxes that are typed into are added to `paths`.
QWidget* makePathBlock(Maker& maker, front::Opening& opening, QWidget& parent,
                       std::vector<PendingPath*>& paths);

/// What the panes give way to while a figure is installed.
QWidget* makeInstallPane(Maker& maker, front::Opening& opening, QWidget& parent);

/// Shows a widget while any of the controls is visible, but for the time of an installation.
void showUnlessInstalling(Maker& maker, front::Opening& opening, QWidget& widget,
                          const std::vector<front::Control*>& controls);

/// What the panes give way to when a mesh is open.
QWidget* makeMeshPage(Maker& maker, front::Opening& opening, QWidget& parent);

}  // namespace norvik::desktop
