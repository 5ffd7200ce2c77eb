// The front end while a tool takes its time.

#include "desktop/desktop_front_end.h"

#include <QApplication>

#include <algorithm>

namespace norvik::desktop {

/// What a tool says in the course of a pass counts behind it.
void DesktopFrontEnd::setHourglass(front::Form&, bool on) {
  if (passStop_.running()) {
    hourglassBehind_ = on;
  } else {
    showHourglass(on);
  }
}

void DesktopFrontEnd::showHourglass(bool on) {
  if (on == hourglass_) return;
  hourglass_ = on;
  if (on) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
  if (stage_ != nullptr) stage_->setBusy(on);
}

/// A pass that can be ended is seen to run, with or without the tool's own hourglass.
void DesktopFrontEnd::beginPass() {
  if (!passStop_.running()) hourglassBehind_ = hourglass_;
  passStop_.begin();
  showHourglass(true);
}

void DesktopFrontEnd::endPass() {
  passStop_.end();
  if (!passStop_.running()) showHourglass(hourglassBehind_);
}

/// A tool may call this for each of a million faces. Most of its time belongs to the tool.
void DesktopFrontEnd::pumpEvents() {
  constexpr qint64 kLeastQuiet = 8'000'000;
  constexpr qint64 kMostQuiet = 100'000'000;
  constexpr qint64 kQuietPerPump = 4;
  if (sincePump_.isValid() && sincePump_.nsecsElapsed() < quiet_) return;
  QElapsedTimer pump;
  pump.start();
  dispatcher_.sync();
  const Dispatcher::Door door(dispatcher_);
  QCoreApplication::processEvents();
  quiet_ = std::clamp(kQuietPerPump * pump.nsecsElapsed(), kLeastQuiet, kMostQuiet);
  sincePump_.start();
}

}  // namespace norvik::desktop
