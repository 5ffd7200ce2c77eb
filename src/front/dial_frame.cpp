#include "front/dial_frame.h"

namespace norvik::front {

namespace {

void setDialFrame(Opening& opening, bool visible) {
  opening.FrameDialHiding.setVisible(visible);
  opening.ListHideDialsChannels.setVisible(visible);
  opening.CommandDialHideDone.setVisible(visible);
}

}  // namespace

void showDialFrame(Opening& opening) {
  setDialFrame(opening, true);
}

void hideDialFrame(Opening& opening) {
  setDialFrame(opening, false);
}

}  // namespace norvik::front
