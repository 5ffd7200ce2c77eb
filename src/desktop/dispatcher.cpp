#include "desktop/dispatcher.h"

namespace norvik::desktop {

bool Dispatcher::run(const std::function<void()>& handler) {
  if (!open()) return false;
  open_ = false;
  ++delivered_;
  session_->deliver(handler);
  open_ = true;
  sync();
  if (rest_) rest_();
  return true;
}

}  // namespace norvik::desktop
