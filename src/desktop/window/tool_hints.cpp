#include "desktop/window/tool_hints.h"

#include "builders/geometry/geometry_listing.h"
#include "builders/scenes/camera_convertor.h"
#include "desktop/forms/marked_items.h"
#include "desktop/words.h"
#include "figure/actor_entry.h"

#include <QMenu>

namespace norvik::desktop {

namespace {

QString geometriesOf(const front::Session& session, std::string_view entry) {
  const front::Opening& opening = session.opening;
  if (!figure::namesActor(entry)) return {};
  QString text;
  text::ignoringErrors([&] {
    const std::string poser = session.settings.get("Startup", "PLoc", "0");
    for (const auto& geometry :
         builders::listGeometries(session.disk, opening.OpenedPath, figure::actorName(entry))) {
      const bool there = session.disk.exists(poser + geometry.obj);
      if (!text.isEmpty()) text += QLatin1Char('\n');
      text += shown(geometry.name) + QStringLiteral(": ") + shown(geometry.obj) +
              (there ? QString() : QStringLiteral(" (not on the disk)"));
    }
  });
  return text.isEmpty() ? QStringLiteral("No other geometry yet.") : text;
}

}  // namespace

void hintAtCameras(const MenuTree& menus, front::Session& session) {
  QAction* entry = menus.action(session.opening.MenuP3P4Cam);
  QMenu* menu = menus.menu(session.opening.MenuCR2Tools);
  QObject::connect(menu, &QMenu::aboutToShow, entry, [entry, &session] {
    const QString caption = entry->text().section(QLatin1Char('\t'), 0, 0);
    const std::string file = builders::cameraFile(session.opening);
    const bool restores = session.disk.exists(file);
    const QString way = restores ? QStringLiteral("restore from ") : QStringLiteral("save to ");
    entry->setText(caption + QLatin1Char('\t') + way + shown(text::fileTitle(file)));
  });
}

void hintAtGeometries(ListView& view, front::Session& session) {
  // By the item's words, since a list may show some of its items alone.
  const auto geometries = [&session](const QModelIndex& index) {
    return geometriesOf(session, typed(index.data().toString()));
  };
  view.setItemDelegate(new MarkedItems(nullptr, geometries, &view));
}

}  // namespace norvik::desktop
