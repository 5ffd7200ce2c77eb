#pragma once
// What the main window has of the history.

#include "desktop/history/history_window.h"
#include "desktop/history/restorer.h"
#include "desktop/link_line.h"

#include <QPointer>

#include <cstdint>

class QMainWindow;

namespace norvik::desktop {

/// In the menu View: History... and the undo of the last replacement, by Ctrl+Z outside of text
/// boxes. In the status bar: what has just been replaced, with a link that puts it back.
class HistoryTools {
 public:
  HistoryTools(Restorer restorer, QMainWindow& window);
  HistoryTools(const HistoryTools&) = delete;
  HistoryTools& operator=(const HistoryTools&) = delete;
  ~HistoryTools();

 private:
  void addToMenu(QMainWindow& window);
  void addToStatusBar(QMainWindow& window);
  void tell(const text::HistoryEntry& entry);
  void showWindow(QMainWindow& window);

  Restorer restorer_;
  QPointer<LinkLine> news_;
  QPointer<HistoryWindow> list_;
  std::uint64_t last_ = 0;  ///< the entry that the link puts back
};

}  // namespace norvik::desktop
