#include "tools/map_viewer.h"

#include "front/load_picture.h"
#include "front/screen_scale.h"
#include "text/columns.h"
#include "tools/map_path.h"

#include <optional>
#include <string>

namespace norvik::tools {

namespace {

constexpr std::string_view kNote = "Note!";

std::string mapText(const front::Opening& opening) {
  const front::ListBox& list = opening.ListAllTexMaps;
  if (list.selection().empty()) return opening.TextMainTex.text();
  return std::string{list.chosen()};
}

/// What the operator is asked about a text that names no file; empty for one that does.
std::string_view question(std::string_view map) {
  if (text::holds(map, "efault")) return "Please locate the default map.";
  if (map == "NO_MAP") return "There is no map listed in the CR2.  Continue anyway?";
  return {};
}

/// The path that is to be shown; none if the operator does not want any.
std::optional<std::string> choosePath(front::Session& session, const std::string& map) {
  const std::string_view asked = question(map);
  if (asked.empty()) {
    return mapPath(session.disk, session.settings.get("Startup", "PLoc", "0"), map);
  }
  if (session.front.messageBox(asked, kNote, front::kYesNo) != front::Answer::yes) {
    return std::nullopt;
  }
  front::CommonDialog& dialog = session.opening.CommonDialog6;
  if (!dialog.open(
          session.front, session.disk.currentFolder(), {},
          {"Where is the map?", "Pictures|*.bmp;*.bum;*.gif;*.jpg;*.jpeg;*.tga|All files|*.*"})) {
    return std::nullopt;
  }
  return dialog.fileName();
}

/// Whether a path is of a kind that is not shown. Capitals are another kind.
bool refused(front::Session& session, const std::string& path) {
  for (const std::string_view kind : {"tif", "png"}) {
    if (text::extension(path) != kind) continue;
    session.front.messageBox("Can't display " + std::string{kind} + "'s yet, sorry!", kNote,
                             front::kOk);
    return true;
  }
  return false;
}

/// Takes the picture of the dialog's file into the form.
void loadMap(front::Session& session, FormViewer& form) {
  const std::string& path = session.opening.CommonDialog6.fileName();
  form.showPicture(front::loadPicture(session, path).value_or(graphics::Surface(0, 0)));
}

void sayIfEmpty(front::Session& session, const FormViewer& form) {
  if (form.picChild.surface().width() > 0) return;
  session.front.messageBox("Map not present!", kNote, front::kExclamation);
}

void viewMap(front::Session& session, FormViewer& form) {
  std::optional<std::string> path = choosePath(session, mapText(session.opening));
  if (!path || refused(session, *path)) return;
  if (path->starts_with('"')) *path = text::withoutLast(path->substr(1), 1);
  session.opening.CommonDialog6.setFileName(*path);
  if (!form.loaded()) return session.load(form);
  loadMap(session, form);
  sayIfEmpty(session, form);
}

}  // namespace

void wireMapViewer(front::Session& session, FormViewer& form) {
  session.opening.PictureMapViewer.released.add([&session, &form](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) viewMap(session, form);
  });
  form.loading.add([&session, &form] {
    form.restoreStart();
    front::stretchToScreen(session, form);
    loadMap(session, form);
  });
  form.shown.add([&session, &form] { sayIfEmpty(session, form); });
  form.unloading.add([&form] { form.picChild.resize(0, 0); });
  form.vsc.changed.add([&form] { form.scroll(); });
  form.HScroll1.changed.add([&form] { form.scroll(); });
}

}  // namespace norvik::tools
