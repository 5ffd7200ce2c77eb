#include "front/screen_scale.h"

#include <algorithm>

namespace norvik::front {

void scaleForm(Form& form, float x, float y) {
  const Box old = form.box();
  form.setBox({0, 0, old.width * x, old.height * y});
  form.setFontSize(form.fontSize() * x);
  for (Control* control : form.controls()) {
    const bool placed =
        control->kind() != ControlKind::menuEntry && control->kind() != ControlKind::timer;
    if (!placed) continue;
    const Box box = control->box();
    control->setBox({box.left * x, box.top * y, box.width * x, box.height * y});
    control->setFontSize(control->fontSize() * x);
  }
}

void ResizeFormToScreen(Session& session, Form& form) {
  if (form.state() != WindowState::normal) return;
  Opening& opening = session.opening;
  const Screen screen = session.front.screen();
  const Box old = form.box();
  opening.ScreenScaleX = screen.width / old.width;
  opening.ScreenScaleY = screen.height / old.height;
  scaleForm(form, opening.ScreenScaleX, opening.ScreenScaleY);
  form.setState(WindowState::maximised);
}

void scaleToScreen(Session& session, Form& form) {
  const Screen screen = session.front.screen();
  const float ratio = std::min(screen.width / form.box().width, screen.height / form.box().height);
  if (ratio > 0) scaleForm(form, ratio, ratio);
}

void stretchToScreen(Session& session, Form& form) {
  const Screen screen = session.front.screen();
  scaleForm(form, screen.width / form.box().width, screen.height / form.box().height);
}

float scaledLeft(const Opening& opening, float left) {
  return opening.ScreenScaleX == 0 ? left : opening.ScreenScaleX * left;
}

}  // namespace norvik::front
