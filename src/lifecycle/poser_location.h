#pragma once
// Where Poser lies.

#include "front/session.h"

namespace norvik::lifecycle {

/// Shows the dialog that asks for Poser's program file. Its name is taken as nine characters long,
/// whatever it is.
void askForPoser(front::Session& session);

/// Stores the folder of the program that the dialog names last; empty for a name of nine characters
/// or fewer.
void storePoserLocation(front::Session& session);

/// Reads PoserLocation from the settings.
void readPoserLocation(front::Session& session);

}  // namespace norvik::lifecycle
