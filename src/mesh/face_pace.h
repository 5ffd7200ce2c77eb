#pragma once
// How often a long read shows itself.

#include "front/front_end.h"

#include <chrono>

namespace norvik::obj {

/// Services events for a read that offers to do so after every face, but not more often than a
/// frame is drawn: a window stays live by that, and a mesh of a million faces does not pay for a
/// million rounds.
class FacePace {
 public:
  explicit FacePace(front::FrontEnd& front) : front_(front) {}

  void afterFace() {
    const auto now = Clock::now();
    if (now < due_) return;
    front_.pumpEvents();
    due_ = Clock::now() + kFrame;
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::milliseconds kFrame{16};

  front::FrontEnd& front_;
  Clock::time_point due_{};
};

}  // namespace norvik::obj
