#include "obj/save_map.h"

#include "graphics/stretched_bmp.h"
#include "text/first_dot.h"
#include "text/number_text.h"

#include <cmath>

namespace norvik::obj {

namespace {

constexpr std::string_view kScratch = "\\MapSave.tmp";
constexpr std::string_view kPrompt = "Enter Map Size";
constexpr std::string_view kEnding = "bmp";
constexpr std::string_view kSecondEnding = ".bmp";
constexpr std::string_view kTransparentEnding = "png";
constexpr std::string_view kSecondTransparentEnding = ".png";
constexpr int kMapPixels = 580;

/// What the two templates differ in.
struct Sheet {
  front::PictureBox& picture;
  front::TextBox& size;
  std::string_view saved;
};

Sheet mainSheet(front::FormOBJ& form) {
  return {form.PictureUVMap, form.TextMapSize, "UV Map Template saved as "};
}

Sheet secondSheet(front::FormOBJ& form) {
  return {form.PictureSecMap, form.TextMapSizeSec, "Secondary UV Map saved as "};
}

bool isSecond(const front::TextBox& size) {
  return size.name() == "TextMapSizeSec";
}

std::optional<int> pixelsIn(std::string_view text) {
  const double number = text::value(text);
  if (!(number > 0 && number <= graphics::kMostPixels)) return std::nullopt;
  const int pixels = static_cast<int>(std::lrint(number));
  return pixels > 0 ? std::optional<int>{pixels} : std::nullopt;
}

void save(Workshop& workshop, const Sheet& sheet) {
  if (workshop.reading) return;
  front::Session& session = workshop.session;
  front::FormOBJ& form = workshop.form;
  const auto file = mapFile(session.opening, sheet.size);
  if (!file) throw text::FileError(text::ErrorNumber::pictureNotMade);
  session.hourglass(true);
  graphics::saveStretchedBmp(session.disk, sheet.picture.surface(), {file->pixels, file->pixels},
                             file->path, session.opening.inProgramFolder(kScratch));
  session.hourglass(false);
  const front::Box& image = form.ImageSaveMap.box();
  const auto size = static_cast<float>(file->pixels);
  form.ImageSaveMap.setBox({image.left, image.top, size, size});
  form.LabelSaveMap.hide();
  sheet.size.hide();
  sheet.picture.resize(kMapPixels, kMapPixels);
  sheet.picture.refresh();
  if (&sheet.picture == &form.PictureUVMap) form.MapSaved = 1;
  session.front.messageBox(std::string{sheet.saved} + file->path, "Note!", front::kOk);
}

void wire(Workshop& workshop, Sheet (*sheetOf)(front::FormOBJ&)) {
  front::TextBox& size = sheetOf(workshop.form).size;
  // The prompt makes room for the number.
  const auto clearPrompt = [&size] {
    if (size.text() == kPrompt) size.setText({});
  };
  size.caretMoved.add(clearPrompt);
  size.pressed.add([clearPrompt](front::Mouse) { clearPrompt(); });
  size.key.add([&workshop, sheetOf, clearPrompt](const std::string& key) {
    clearPrompt();
    if (key == "Enter") save(workshop, sheetOf(workshop.form));
  });
}

}  // namespace

std::optional<MapFile> mapFile(const front::Opening& opening, const front::TextBox& size) {
  const auto pixels = pixelsIn(size.text());
  if (!pixels) return std::nullopt;
  const bool second = isSecond(size);
  const std::string& mesh = opening.LabelOBJFileName.caption();
  return MapFile{
      text::throughFirstDot(mesh, second ? kSecondEnding : kEnding),
      text::throughFirstDot(mesh, second ? kSecondTransparentEnding : kTransparentEnding), *pixels};
}

front::PictureBox& mapSheet(front::FormOBJ& form, const front::TextBox& size) {
  return isSecond(size) ? form.PictureSecMap : form.PictureUVMap;
}

void wireSaveMap(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  form.LabelSaveMap.clicked.add([&form] {
    form.TextMapSize.setText(kPrompt);
    form.TextMapSize.show();
  });
  wire(workshop, mainSheet);
  wire(workshop, secondSheet);
}

}  // namespace norvik::obj
