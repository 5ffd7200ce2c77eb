#include "tools/magnifier_form.h"

namespace norvik::tools {

namespace {

constexpr int kWidth = 300;  // of the image, in pixels
constexpr int kHeight = 240;
constexpr float kBar = 16;
constexpr float kStrip = 24;
constexpr float kCross = 20;
constexpr float kTwipsPerPixel = 15;
constexpr int kStartZoom = 50;

}  // namespace

Magnifier::Magnifier() : Form("Magnifier", "Magnifier") {
  restoreStart();
  static_cast<void>(takeChanges());
}

void Magnifier::restoreStart() {
  LastX = 0;
  LastY = 0;
  VScroll1.setValue(kStartZoom);
  Shape1.show();
  Shape2.setBack(front::kWhite);
  fit(kWidth, kHeight);
}

void Magnifier::fit(int width, int height) {
  const auto right = static_cast<float>(width);
  const auto bottom = static_cast<float>(height);
  setBox(
      {box().left, box().top, (right + kBar) * kTwipsPerPixel, (bottom + kStrip) * kTwipsPerPixel});
  Picture1.resize(width, height);
  VScroll1.setBox({right, 0, kBar, bottom});
  const float third = right / 3;
  Label1.setBox({0, bottom, third, kStrip});
  Label2.setBox({third, bottom, third, kStrip});
  Shape2.setBox({2 * third, bottom, third, kStrip});
  Shape1.setBox({(right - kCross) / 2, (bottom - kCross) / 2, kCross, kCross});
}

}  // namespace norvik::tools
