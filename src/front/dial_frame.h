#pragma once
// FrameDialHiding and what stands in it: they come and go together.

#include "front/opening.h"

namespace norvik::front {

void showDialFrame(Opening& opening);
void hideDialFrame(Opening& opening);

}  // namespace norvik::front
