#pragma once
// MenuCoordMat: a figure's materials brought in step with those of its OBJ.

#include "front/session.h"
#include "materials/form_mat_coord.h"

namespace norvik::materials {

/// Compares the destination's materials with the usemtl names of its OBJ, as TextMainOBJ names it,
/// and writes the figure without those that the OBJ does not use and with those that it lacked, to
/// "\CR2.tmp" in the program folder. FormMatCoord shows what was found. A changed figure is offered
/// by Save As; after a Cancel it stays pending for the next one. Where nothing is to be changed
/// "\CR2.tmp" stays as it is, also without presets that the operator wanted gone.
void MatCoordinator(front::Session& session, FormMatCoord& form);

/// Hangs the coordinator on MenuCoordMat.
void wireMaterialCoordinator(front::Session& session, FormMatCoord& form);

}  // namespace norvik::materials
