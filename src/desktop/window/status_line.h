#pragma once
// The status bar.

#include "desktop/maker.h"
#include "desktop/pass_stop.h"
#include "front/opening.h"

#include <cstdint>
#include <functional>
#include <vector>

class QAbstractButton;
class QLabel;
class QProgressBar;
class QStatusBar;

namespace norvik::desktop {

class LinkLine;

/// What can be done with a result: the link's text, and what it does.
struct ResultAction {
  QString name;
  std::function<void()> act;
};

/// What goes on, how far it is, what the last tool has left, and the size of the file.
class StatusLine {
 public:
  StatusLine(Maker& maker, front::Opening& opening, PassStop& passStop, QStatusBar& bar);

  void setBusy(bool busy);
  /// Says something until the next work begins or ends.
  void say(const QString& text);
  /// Says what a tool has left, and offers what can be done with it, until the next result or until
  /// it is withdrawn. The tip says where it lies.
  void offer(const QString& text, const QString& tip, std::vector<ResultAction> actions);
  void withdraw();
  /// No pass is under way any more.
  void rest();
  /// How far a long pass has read its file; files that are read at once show nothing.
  void setProgress(std::uint64_t position, std::uint64_t size);

 private:
  QLabel* state_;
  LinkLine* result_;
  std::vector<ResultAction> actions_;
  QProgressBar* progress_;
  PassStop& passStop_;
  QAbstractButton& cancel_;
};

}  // namespace norvik::desktop
