#include "desktop/chooser_places.h"

#include "desktop/window/place.h"
#include "desktop/words.h"

#include <QDir>
#include <QFileInfo>

namespace norvik::desktop {

namespace {

constexpr std::string_view kFoldersKey = "Folders";
constexpr QChar kBetween = QLatin1Char('|');
constexpr int kMostUsed = 6;

QStringList usedLast(const front::Session& session) {
  return shown(session.settings.get(kWindowSection, kFoldersKey, ""))
      .split(kBetween, Qt::SkipEmptyParts);
}

QStringList libraries(const front::Session& session) {
  const std::string& poser = session.opening.PoserLocation;
  QStringList folders;
  if (poser.size() < 2) return folders;  // not told yet
  text::ignoringErrors([&] {
    const QDir folder(hostName(session.disk.hostPath(poser + "Runtime\\Libraries")));
    if (!folder.exists()) return;
    for (const QFileInfo& library :
         folder.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
      folders << library.filePath();
    }
  });
  return folders;
}

}  // namespace

QStringList chooserPlaces(const front::Session& session) {
  QStringList places = libraries(session);
  for (const QString& folder : usedLast(session)) {
    if (!places.contains(folder) && QFileInfo(folder).isDir()) places << folder;
  }
  return places;
}

void rememberPlace(front::Session& session, const QString& file) {
  const QString folder = QFileInfo(file).path();
  QStringList used = usedLast(session);
  if (!used.isEmpty() && used.first() == folder) return;
  used.removeAll(folder);
  used.prepend(folder);
  while (used.size() > kMostUsed) used.removeLast();
  text::ignoringErrors([&] {
    session.settings.set(kWindowSection, kFoldersKey, used.join(kBetween).toStdString());
  });
}

}  // namespace norvik::desktop
