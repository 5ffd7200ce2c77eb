#include "lifecycle/closing_animation.h"

namespace norvik::lifecycle {

namespace {

constexpr float kTwipsPerPixel = 15;

}  // namespace

void playClosingAnimation(front::Session& session) {
  front::Opening& opening = session.opening;
  front::FrontEnd& front = session.front;
  opening.setState(front::WindowState::normal);
  for (front::Control* control : opening.controls()) control->hide();
  opening.PictureTile.show();

  const int width = static_cast<int>(opening.box().width / kTwipsPerPixel);
  const int height = static_cast<int>(opening.box().height / kTwipsPerPixel);
  for (int left = 0; left < width; left += front.tileWidth()) {
    for (int top = 0; top < height; top += front.tileHeight()) {
      if (!front.drawTile(opening, left, top)) return;
    }
    opening.TimerTileClose.start();
    while (opening.TimerTileClose.running()) front.pumpEvents();
  }
}

void wireClosingAnimation(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.TimerTileClose.expired.add([&opening] { opening.TimerTileClose.stop(); });
}

}  // namespace norvik::lifecycle
