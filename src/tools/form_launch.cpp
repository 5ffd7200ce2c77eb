#include "tools/form_launch.h"

#include <utility>

namespace norvik::tools {

namespace {

constexpr int kWidth = 160;  // pixels
constexpr int kHeight = 120;

}  // namespace

FormLaunch::FormLaunch() : Form("FormLaunch", "Launcher") {
  clearPicture();
  start_.remember(*this);
  static_cast<void>(takeChanges());
}

void FormLaunch::restoreStart() {
  start_.restore();
  clearPicture();
}

void FormLaunch::clearPicture() {
  printed.clear();
  holdsPicture_ = false;
  Picture1.resize(kWidth, kHeight);
}

void FormLaunch::showPicture(graphics::Surface picture) {
  printed.clear();
  holdsPicture_ = true;
  Picture1.resize(picture.width(), picture.height());
  Picture1.surface() = std::move(picture);
  Picture1.refresh();
}

}  // namespace norvik::tools
