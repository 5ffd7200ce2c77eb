#include "tools/form_viewer.h"

#include <cmath>
#include <utility>

namespace norvik::tools {

namespace {

constexpr float kWidth = 800;  // pixels
constexpr float kHeight = 600;
constexpr float kBar = 16;
constexpr float kTwipsPerPixel = 15;
constexpr float kFontPoints = 8.25F;

}  // namespace

FormViewer::FormViewer() : Form("FormViewer", "Map Viewer") {
  restoreStart();
  static_cast<void>(takeChanges());
}

void FormViewer::restoreStart() {
  setBox({0, 0, kWidth * kTwipsPerPixel, kHeight * kTwipsPerPixel});
  setFontSize(kFontPoints);
  for (front::Control* control : controls()) control->setFontSize(kFontPoints);
  picParent.setBox({0, 0, kWidth, kHeight});
  vsc.setBox({kWidth - kBar, 0, kBar, kHeight});
  HScroll1.setBox({0, kHeight - kBar, kWidth, kBar});
  picChild.resize(0, 0);
  for (front::Slider* bar : {&vsc, &HScroll1}) {
    bar->setLimits(0, kMostOfBar);
    bar->setValue(0);
    bar->setEnabled(false);
  }
}

FormViewer::Axis FormViewer::setBar(front::Slider& bar, float picture, float inner) {
  bar.setEnabled(picture > inner);
  if (!bar.enabled()) return {};
  const auto beyond = std::lround(picture - inner);
  Axis axis{beyond > kMostOfBar};
  bar.setLimits(0, axis.overflows ? kMostOfBar : static_cast<int>(beyond));
  bar.setPage(static_cast<int>(std::lround(inner)));
  return axis;
}

void FormViewer::showPicture(graphics::Surface picture) {
  ++shownPictures;
  picChild.surface() = std::move(picture);
  const graphics::Surface& surface = picChild.surface();
  picChild.setBox(
      {0, 0, static_cast<float>(surface.width()), static_cast<float>(surface.height())});
  const front::Box& window = picParent.box();
  for (front::Slider* bar : {&vsc, &HScroll1}) {
    bar->setLimits(0, kMostOfBar);
    bar->setValue(0);
  }
  down_ = setBar(vsc, picChild.box().height, window.height);
  across_ = setBar(HScroll1, picChild.box().width, window.width);
  if (vsc.enabled()) {
    const float width = vsc.box().width;
    vsc.setBox({window.width - width, vsc.box().top, width, window.height});
  }
  if (HScroll1.enabled()) {
    const float height = HScroll1.box().height;
    HScroll1.setBox({HScroll1.box().left, window.height - height, window.width, height});
  }
  picChild.refresh();
}

/// Where a bar has moved the picture to. What a bar cannot count is not reached: its whole way
/// moves the picture by one window.
float FormViewer::offset(const front::Slider& bar, Axis axis, float inner) {
  const float step = axis.overflows ? inner / static_cast<float>(kMostOfBar) : 1;
  const auto value = static_cast<float>(bar.value());
  return value == 0 ? 0 : -(step * value);
}

void FormViewer::scroll() {
  const front::Box& window = picParent.box();
  const front::Box& box = picChild.box();
  picChild.setBox({offset(HScroll1, across_, window.width), offset(vsc, down_, window.height),
                   box.width, box.height});
}

}  // namespace norvik::tools
