#pragma once
// The figures and the actors of the destination, for FormECM.

#include "erc/form_ecm.h"
#include "front/session.h"

#include <string>

namespace norvik::erc {

/// The name of the file's first figure: what follows "name" and one blank, up to a comma. A file
/// without a figure is inputPastEnd (62).
std::string firstFigureName(const front::Session& session);

/// Fills ListConFigECM with the names of the file's figures, each as its line stands from column 7.
void listFigures(front::Session& session, FormECM& form);

/// Fills ListActorsECM with the actors of the second section, those of one figure or those of all,
/// and gives it the keys. A file without a second section is inputPastEnd (62).
void listActors(front::Session& session, FormECM& form, bool ofOneFigure);

}  // namespace norvik::erc
