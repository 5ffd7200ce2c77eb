#include "workshop/view_keys.h"

#include "workshop/spin.h"
#include "workshop/view.h"

#include <cmath>
#include <string>

namespace norvik::obj {

namespace {

/// While a second mesh is placed, or a tool asks for patience, the view keeps still.
bool busy(const Workshop& workshop) {
  return workshop.form.AddMode || workshop.form.LabelWait.visible();
}

void hideFlatViews(Workshop& workshop) {
  for (front::PictureBox* view : workshop.form.flatViews()) view->hide();
}

/// The divisor keeps to whole tenths, so that twenty steps out come to 0 and the next one begins
/// anew.
void zoom(Workshop& workshop, float tenths) {
  constexpr float kTenths = 10;
  constexpr float kStart = 2;
  float& divisor = workshop.spin.FovDivisor;
  const float before = divisor == 0 ? kStart : divisor;
  divisor = std::round(before * kTenths + tenths) / kTenths;
  setField(workshop, divisor);
  drawFrame(workshop);
}

/// The height does not add up: each press looks from a tenth above or below the start.
void look(Workshop& workshop, float height) {
  lookFromHeight(workshop, height);
  drawFrame(workshop);
}

void changeSpeed(Workshop& workshop, int by) {
  int& speed = workshop.spin.SpinSpeed;
  speed += by;
  if (speed == 0) speed = 1;
  look(workshop, kEyeHeight);
}

void startOrStop(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  Spin& spin = workshop.spin;
  form.PictureUVMap.hide();
  hideFlatViews(workshop);
  if (!spin.SpinStopped) {
    spin.SpinStopped = true;
    form.PictureNewFile.show();
    look(workshop, kEyeHeight);
    return;
  }
  spin.SpinStopped = false;
  form.PictureNewFile.hide();
  spin.diffuse = {0, 0, 1};
  MainLoop(workshop);
}

void take(Workshop& workshop, const std::string& key) {
  if (key == "Escape") workshop.Suppress = !workshop.Suppress;
  if (key == "r") RefreshOBJ(workshop);
  if (busy(workshop)) return;
  if (key == "/") zoom(workshop, -1);
  if (key == "*") zoom(workshop, 1);
  if (key == "+") look(workshop, kEyeHeight - 0.1F);
  if (key == "-") look(workshop, kEyeHeight + 0.1F);
  if (key == "9") changeSpeed(workshop, 1);
  if (key == "3") changeSpeed(workshop, -1);
  if (key == "Space") startOrStop(workshop);
}

}  // namespace

void wireViewKeys(Workshop& workshop) {
  workshop.form.key.add([&workshop](const std::string& key) { take(workshop, key); });
}

}  // namespace norvik::obj
