#pragma once
// Sound.

#include <QObject>
#include <QString>

#include <memory>

namespace norvik::desktop {

/// Plays sounds where the machine can; elsewhere it is silent.
class Sound {
 public:
  Sound();
  ~Sound();
  Sound(const Sound&) = delete;
  Sound& operator=(const Sound&) = delete;

  /// Starts a sound and does not wait for its end.
  void play(const QString& hostFile);

 private:
  std::unique_ptr<QObject> player_;
};

}  // namespace norvik::desktop
