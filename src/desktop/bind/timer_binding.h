#pragma once
// Timers.

#include "desktop/bind/binding.h"
#include "front/timer.h"

#include <QTimer>

namespace norvik::desktop {

/// Lets a timer expire. While a handler runs that does not wait for events, an expiry is left out.
class TimerBinding : public Binding {
 public:
  TimerBinding(Dispatcher& dispatcher, front::Timer& timer);

 protected:
  void refresh() override;

 private:
  front::Timer& timer_;
  QTimer clock_;
};

}  // namespace norvik::desktop
