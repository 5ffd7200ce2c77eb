#include "channels/dials/dial_tools.h"

#include "channels/dials/bend.h"
#include "channels/dials/erc_unique.h"
#include "channels/dials/force_limits.h"
#include "channels/dials/hide_dials.h"
#include "channels/dials/ik_chains.h"
#include "channels/dials/reorder.h"
#include "channels/dials/tracking_speed.h"
#include "channels/dials/translate_dials.h"
#include "channels/dials/twist.h"

namespace norvik::channels {

void wireDialTools(front::Session& session) {
  wireReorder(session);
  wireHideDials(session);
  wireTranslateDials(session);
  wireTrackingSpeed(session);
  wireForceLimits(session);
  wireBend(session);
  wireTwist(session);
  wireIkChains(session);
  wireErcUnique(session);
}

}  // namespace norvik::channels
