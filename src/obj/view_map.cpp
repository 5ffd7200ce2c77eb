#include "obj/view_map.h"

#include "front/load_picture.h"
#include "text/columns.h"

#include <algorithm>
#include <optional>

namespace norvik::obj {

namespace {

/// The map as large as it is, or so small that it fits.
void drawMap(front::PictureBox& picture, const graphics::Surface& map) {
  graphics::Surface& surface = picture.surface();
  picture.clear();
  const double scale =
      std::max({1.0, static_cast<double>(map.width()) / std::max(surface.width(), 1),
                static_cast<double>(map.height()) / std::max(surface.height(), 1)});
  const int width = std::min(surface.width(), static_cast<int>(map.width() / scale));
  const int height = std::min(surface.height(), static_cast<int>(map.height() / scale));
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      surface.setPixel({x, y},
                       map.pixel({static_cast<int>(x * scale), static_cast<int>(y * scale)}));
    }
  }
  picture.refresh();
}

/// The map's file: the figure's, or one that the operator finds; nothing after a word or a cancel.
std::optional<std::string> findMap(front::Session& session) {
  front::Opening& opening = session.opening;
  const std::string path =
      textureMapPath(session.settings.get("Startup", "PLoc", "0"), opening.TextMainTex.text());
  if (text::equalIgnoringCase(text::extension(path), "tif")) {
    session.front.messageBox("Can't work with tif files.", "Error", front::kOk);
    return std::nullopt;
  }
  if (session.disk.exists(path)) return path;
  session.front.messageBox("Can't find the file.", "Error!", front::kOk);
  front::CommonDialog& dialog = opening.CommonDialog1;
  if (!dialog.open(session.front, session.disk.currentFolder(), {},
                   {"Find the texture map", front::kMapFilter})) {
    return std::nullopt;
  }
  return dialog.fileName();
}

void showMap(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  if (form.PictureZoom.visible()) return workshop.showAlone(form.PictureObjViewer2);
  const auto path = findMap(workshop.session);
  if (!path) return;
  const auto map = front::loadPicture(workshop.session, *path);
  if (!map || map->pixels().empty()) {
    workshop.session.front.messageBox("Bad file or wrong one!", "Error!", front::kOk);
    return;
  }
  drawMap(form.PictureZoom, *map);
  workshop.showAlone(form.PictureZoom);
}

}  // namespace

std::string textureMapPath(std::string_view poserFolder, std::string_view map) {
  std::string text{map};
  std::erase(text, '"');
  const std::size_t runtime = text::lowered(text).find("runtime");
  const std::string below =
      runtime == std::string::npos ? "Runtime\\textures\\" + text : text.substr(runtime);
  return std::string{poserFolder} + text::replaced(below, ':', '\\');
}

void wireViewMap(Workshop& workshop) {
  workshop.form.LabelViewCR2TexMap.released.add([&workshop](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::right) {
      workshop.session.front.messageBox(
          "Click this to view the map listed in the CR2, or for the OBJ you have opened manually.",
          "Note", front::kOk);
    } else if (!workshop.reading) {
      showMap(workshop);
    }
  });
}

}  // namespace norvik::obj
