#pragma once
// The pace of an animation.

#include <QElapsedTimer>
#include <QTimer>

namespace norvik::desktop {

/// Lets the window live until the next frame is due: sixty times a second, or as fast as the frames
/// can be painted.
class Pacer {
 public:
  Pacer();

  /// Returns when the frame is due, or at once when `stop` has become true.
  void wait(const bool& stop);

 private:
  QElapsedTimer clock_;
  QTimer alarm_;
  qint64 due_ = 0;  ///< nanoseconds of the clock
};

}  // namespace norvik::desktop
