#pragma once
// The dial tools, the mirror and the joints, each used once on a late body part of the figure.

#include "bench_desk.h"

namespace norvik::bench {

void reorder(Bench& bench);
void listAndHideDials(Bench& bench);
void changeTrackingSpeed(Bench& bench);
void mirrorMorph(Bench& bench);
void transferJoints(Bench& bench);
void bendPart(Bench& bench);
void extractMorph(Bench& bench);
void removeIkChains(Bench& bench);
void makeUnique(Bench& bench);
/// To friendly names; the figure has numbers.
void renameDials(Bench& bench);
/// What the renamer's form tells before anything is renamed.
void previewDials(Bench& bench);

}  // namespace norvik::bench
