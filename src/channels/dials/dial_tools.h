#pragma once
// The tools that change one thing about channels.

#include "front/session.h"

namespace norvik::channels {

/// Hangs all of this folder's tools on their triggers.
void wireDialTools(front::Session& session);

}  // namespace norvik::channels
