#include "desktop/pacer.h"

#include <QCoreApplication>

#include <algorithm>

namespace norvik::desktop {

Pacer::Pacer() {
  clock_.start();
  alarm_.setSingleShot(true);
  alarm_.setTimerType(Qt::PreciseTimer);
}

void Pacer::wait(const bool& stop) {
  constexpr qint64 kFrame = 1'000'000'000 / 60;
  constexpr qint64 kMillisecond = 1'000'000;
  // What is late does not catch up.
  due_ = std::max(due_ + kFrame, clock_.nsecsElapsed());
  QCoreApplication::processEvents();
  for (;;) {
    const qint64 left = due_ - clock_.nsecsElapsed();
    if (stop || left <= 0) return;
    alarm_.start(static_cast<int>((left + kMillisecond - 1) / kMillisecond));
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

}  // namespace norvik::desktop
