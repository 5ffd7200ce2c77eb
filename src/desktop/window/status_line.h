#pragma once
// The status bar.

#include "desktop/maker.h"
#include "front/opening.h"

#include <cstdint>

class QLabel;
class QProgressBar;
class QStatusBar;

namespace norvik::desktop {

/// What goes on, how far it is, and the size of the file.
class StatusLine {
 public:
  StatusLine(Maker& maker, front::Opening& opening, QStatusBar& bar);

  void setBusy(bool busy);
  /// Says something until the next work begins or ends.
  void say(const QString& text);
  /// No pass is under way any more.
  void rest();
  /// How far a long pass has read its file; files that are read at once show nothing.
  void setProgress(std::uint64_t position, std::uint64_t size);

 private:
  QLabel* state_;
  QProgressBar* progress_;
};

}  // namespace norvik::desktop
