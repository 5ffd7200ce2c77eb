#pragma once
// Dials and body parts by name or by number. MenuDialRen shows the form; the operator clicks a
// direction, picks a file and drags its name to the picture. The file is replaced by one whose
// dials and body parts have readable names ("Bend"), or numbers that a Poser of any language turns
// into its own names ("GetStringRes(1028,4)"). On the way "Dials.tmp" is written in the current
// folder; it stays if the file could not be replaced.

#include "dials/renamer_form.h"
#include "front/session.h"

namespace norvik::dials {

void wireRenamer(front::Session& session, Renamer& form);

}  // namespace norvik::dials
