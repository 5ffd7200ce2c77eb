#include "desktop/bind/timer_binding.h"

namespace norvik::desktop {

TimerBinding::TimerBinding(Dispatcher& dispatcher, front::Timer& timer)
    : Binding(dispatcher, timer), timer_(timer) {
  clock_.setObjectName(QString::fromStdString(timer.name()));
  QObject::connect(&clock_, &QTimer::timeout, &clock_, [this] {
    if (timer_.running()) raise(timer_.expired);
  });
}

void TimerBinding::refresh() {
  const bool goes = timer_.running() && timer_.enabled();
  if (!goes) {
    clock_.stop();
  } else if (!clock_.isActive() || clock_.interval() != timer_.interval()) {
    clock_.start(timer_.interval());
  }
}

}  // namespace norvik::desktop
