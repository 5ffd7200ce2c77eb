#include "tools/graph_paper.h"

#include "graphics/bmp_file.h"
#include "text/number_text.h"

#include <cmath>
#include <string>

namespace norvik::tools {

namespace {

constexpr std::string_view kNote = "Note!";
constexpr std::string_view kScratch = "\\Graph.tmp";

/// A box's value as a whole number, halves to the even one.
double wholeValue(const front::TextBox& box) {
  return std::nearbyint(text::value(box.text()));
}

void leaveHorizontal(front::Session& session, FormScale& form) {
  constexpr double kMostPixels = 9999;
  const std::string& size = form.TextHorizontal.text();
  if (text::value(size) > kMostPixels) {
    session.front.messageBox("Wiseass! You've got a " + size + " pixel wide display??", "GOTCHA!",
                             front::kOk);
  }
  form.setFocus(form.TextVertical);
}

/// Whether a size fits on the screen. Both are compared with the screen's width.
bool fits(front::Session& session, double size) {
  constexpr double kTwipsPerPixel = 15;
  return size * kTwipsPerPixel <= static_cast<double>(session.front.screen().width);
}

void rule(graphics::Surface& sheet, int width, int height) {
  constexpr int kStep = 10;
  constexpr int kBold = 100;
  const auto colour = [](int at) { return graphics::paletteColour(at % kBold == 0 ? 12 : 1); };
  for (int x = 0; x <= width; x += kStep) sheet.line({x, 0}, {x, height}, colour(x));
  // They lie over the others.
  for (int y = 0; y <= height; y += kStep) sheet.line({0, y}, {width, y}, colour(y));
}

void drawSheet(front::Session& session, FormScale& form, int width, int height) {
  for (front::Control* control : std::initializer_list<front::Control*>{
           &form.LabelSize, &form.TextHorizontal, &form.LabelVertical, &form.TextVertical}) {
    control->hide();
  }
  form.Picture1.resize(width, height);
  rule(form.Picture1.surface(), width, height);
  form.Picture1.refresh();
  // In a drive's root folder the backslash comes doubled.
  const std::string path = session.disk.currentFolder() + "\\" + std::to_string(width) + "X" +
                           std::to_string(height) + ".bmp";
  graphics::saveBmp(session.disk, form.Picture1.surface(), path,
                    session.opening.inProgramFolder(kScratch));
  session.front.messageBox("Graphpaper saved as " + path, kNote, front::kOk);
}

void leaveVertical(front::Session& session, FormScale& form) {
  if (form.TextHorizontal.text().empty()) {
    session.front.messageBox("Enter a value for the horizontal measurement.", kNote, front::kOk);
    return;
  }
  const double width = wholeValue(form.TextHorizontal);
  const double height = wholeValue(form.TextVertical);
  if (!fits(session, width)) {
    session.front.messageBox("Too wide for this screen resolution!", kNote, front::kOk);
    form.setFocus(form.TextHorizontal);
    return;
  }
  if (!fits(session, height)) {
    session.front.messageBox("Too tall for this screen resolution!", kNote, front::kOk);
    form.setFocus(form.TextVertical);
    return;
  }
  if (width < 1 || height < 1) return;
  drawSheet(session, form, static_cast<int>(width), static_cast<int>(height));
}

}  // namespace

void wireGraphPaper(front::Session& session, FormScale& form) {
  session.opening.MenuScale.clicked.add([&session, &form] { session.load(form); });
  form.loading.add([&form] { form.restoreStart(); });
  form.TextHorizontal.key.add([&session, &form](const std::string& key) {
    if (key == "Enter") leaveHorizontal(session, form);
  });
  form.TextVertical.key.add([&session, &form](const std::string& key) {
    if (key == "Enter") leaveVertical(session, form);
  });
}

}  // namespace norvik::tools
