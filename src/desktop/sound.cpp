#include "desktop/sound.h"

#ifdef NORVIK_SOUND
#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>
#endif

namespace norvik::desktop {

Sound::Sound() = default;
Sound::~Sound() = default;

#ifdef NORVIK_SOUND
void Sound::play(const QString& hostFile) {
  if (QMediaDevices::defaultAudioOutput().isNull()) return;
  auto player = std::make_unique<QSoundEffect>();
  player->setSource(QUrl::fromLocalFile(hostFile));
  player->play();
  player_ = std::move(player);
}
#else
void Sound::play(const QString&) {}
#endif

}  // namespace norvik::desktop
