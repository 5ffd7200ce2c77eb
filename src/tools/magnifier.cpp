#include "tools/magnifier.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <utility>

namespace norvik::tools {

namespace {

constexpr auto kZoomKeys = std::to_array<std::pair<std::string_view, int>>(
    {{"Ctrl+F1", 100}, {"Ctrl+F2", 75}, {"Ctrl+F3", 50}, {"Ctrl+F4", 25}, {"Ctrl+F5", 1}});

void showZoom(Magnifier& form) {
  std::array<char, 16> text{};
  constexpr double kWhole = 100;
  static_cast<void>(
      std::snprintf(text.data(), text.size(), "%.2f", kWhole / form.VScroll1.value()));
  form.Label2.setCaption(std::string{text.data()} + " x");
  form.Picture1.clear();
}

/// The part of the screen that fills `image` pixels of the picture.
int sampleSize(int image, int zoom) {
  return std::max(1, image * zoom / 100);
}

/// Lets the middle of the sample follow the pointer along an axis, unless the sample would leave
/// the screen there.
void follow(int& last, int pointer, int half, int screen) {
  if (pointer - half >= 0 && pointer + half <= screen) last = pointer;
}

void look(front::Session& session, Magnifier& form) {
  const auto pointer = session.front.pointer();
  if (!pointer) return;
  form.Shape2.setBack(pointer->colour & 0xFFFFFFU);
  graphics::Surface& image = form.Picture1.surface();
  const int width = sampleSize(image.width(), form.VScroll1.value());
  const int height = sampleSize(image.height(), form.VScroll1.value());
  follow(form.LastX, pointer->at.x, width / 2, pointer->screenWidth);
  follow(form.LastY, pointer->at.y, height / 2, pointer->screenHeight);
  image = session.front.enlarged({form.LastX - width / 2, form.LastY - height / 2, width, height},
                                 image.width(), image.height());
  form.Picture1.refresh();
}

void press(front::Session& session, Magnifier& form, front::Mouse mouse) {
  if (mouse.button == front::MouseButton::left) form.Shape1.hide();
  if (mouse.button != front::MouseButton::right) return;
  session.front.copyPicture(form.Picture1.surface());
  session.front.messageBox("Picture copied", "Note", front::kOk);
}

void leave(front::Session& session, Magnifier& form) {
  if (session.front.clipboardHoldsPicture() &&
      session.front.messageBox("Do you want to clear the clipboard?", "Magnifier", front::kYesNo) ==
          front::Answer::yes) {
    session.front.clearClipboard();
  }
  form.Timer1.stop();
}

void wireOpening(front::Session& session, front::FormOBJ& workshop, Magnifier& form) {
  workshop.PictureMagGlass.released.add([&session, &form](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) return session.load(form);
    if (mouse.button != front::MouseButton::right) return;
    session.front.messageBox("Click this to enlarge a section of the picture", "Info", front::kOk);
  });
}

}  // namespace

void wireMagnifier(front::Session& session, front::FormOBJ& workshop, Magnifier& form) {
  wireOpening(session, workshop, form);
  form.loading.add([&form] {
    form.restoreStart();
    showZoom(form);
    form.Timer1.start();
  });
  form.Timer1.expired.add([&session, &form] { look(session, form); });
  form.VScroll1.changed.add([&form] { showZoom(form); });
  form.key.add([&form](const std::string& key) {
    for (const auto& [name, zoom] : kZoomKeys) {
      if (key != name) continue;
      form.VScroll1.setValue(zoom);
      showZoom(form);
    }
  });
  form.Picture1.pressed.add([&session, &form](front::Mouse mouse) { press(session, form, mouse); });
  form.Picture1.released.add([&form](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) form.Shape1.show();
  });
  form.unloading.add([&session, &form] { leave(session, form); });
}

}  // namespace norvik::tools
