#pragma once
// Where Poser lies.

#include "front/session.h"

namespace norvik::front {

/// Shows the dialog that asks for Poser's program file. Whether it was accepted.
bool askForPoser(Session& session, std::string_view title = {});

/// Stores the folder of the program that the dialog names last: its name is taken as nine
/// characters long, whatever it is; empty for one of nine characters or fewer.
void storePoserLocation(Session& session);

/// Reads PoserLocation from the settings.
void readPoserLocation(Session& session);

}  // namespace norvik::front
