#include "tools/form_launch.h"

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
  Picture1.resize(kWidth, kHeight);
}

}  // namespace norvik::tools
