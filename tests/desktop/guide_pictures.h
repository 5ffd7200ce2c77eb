#pragma once
// All pictures of the guide, in sections that can be taken by themselves.

#include "desktop/operator.h"

#include <QStringList>

namespace norvik::desktop {

/// The names of the sections.
QStringList pictureSections();

/// Takes the pictures of a section into a host folder. `drive` is the host folder of drive C, with
/// the sample figures in it.
void takeSection(const QString& section, Program& program, Operator& hand, const QString& drive,
                 const QString& folder);

/// Takes all of them, one section behind the other, and leaves the program.
void takeAllPictures(Program& program, Operator& hand, const QString& drive, const QString& folder);

}  // namespace norvik::desktop
