#pragma once
// Timers. They expire between handlers, or where a handler pumps events, on the one thread.

#include "front/control.h"

#include <string_view>

namespace norvik::front {

class Timer : public Control {
 public:
  /// The interval is in milliseconds. A timer is born stopped.
  Timer(Form& form, std::string_view name, int interval)
      : Control(form, name, ControlKind::timer), interval_(interval) {}

  int interval() const { return interval_; }
  bool running() const { return running_; }
  /// Lets the timer expire once per interval until it is stopped.
  void start() { set(running_, true); }
  void stop() { set(running_, false); }

  Event<> expired{*this};

 private:
  int interval_;
  bool running_ = false;
};

}  // namespace norvik::front
