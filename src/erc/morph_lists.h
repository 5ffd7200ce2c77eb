#pragma once
// The morphs of the figure in FormECM's list of channels.

#include "erc/form_ecm.h"
#include "front/session.h"

namespace norvik::erc {

// The file is the destination. All of these read fields, so that indentation does not count.

/// CM: the morphs behind the file's last "actor BODY:", as name, colon and figure number. Keeps the
/// first figure's number and the last one's. An error ends the list without a word.
void listMorphsOfLastFigure(front::Session& session, FormECM& form);

/// JCM, TCM, MCM: the file's morphs, all with the number of the first figure. An error ends the
/// list without a word.
void listMorphs(front::Session& session, FormECM& form);

/// PBM: the bare names of the file's morphs. An error ends the list without a word.
void listBareMorphs(front::Session& session, FormECM& form);

/// Lists the morphs anew, as name, a blank, colon and the number of the figure that the last
/// "parent" line named: CM those of the file's first figure, other kinds all. Says so when there
/// are none.
void refillMorphs(front::Session& session, FormECM& form);

}  // namespace norvik::erc
