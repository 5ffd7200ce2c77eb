#include "desktop/dispatcher.h"

namespace norvik::desktop {

bool Dispatcher::run(std::string_view trigger, const std::function<void()>& handler) {
  if (!open()) return false;
  open_ = false;
  ++delivered_;
  session_->deliver(trigger, handler);
  open_ = true;
  sync();
  if (rest_) rest_();
  return true;
}

}  // namespace norvik::desktop
