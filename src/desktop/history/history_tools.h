#pragma once
// What the main window has of the history.

#include "desktop/history/history_window.h"
#include "desktop/history/restorer.h"

#include <QPointer>

#include <cstdint>

class QMainWindow;

namespace norvik::desktop {

/// In the menu View: History... and the undo of the last replacement, by Ctrl+Z outside of text
/// boxes. In the status bar, and in that of the mesh workshop: what has just been replaced, with a
/// link that puts it back; and where one act has replaced several files, a link to the list of all.
class HistoryTools {
 public:
  HistoryTools(Restorer restorer, QMainWindow& window);
  HistoryTools(const HistoryTools&) = delete;
  HistoryTools& operator=(const HistoryTools&) = delete;
  ~HistoryTools();

 private:
  void addToMenu(QMainWindow& window);
  void tell(const text::HistoryEntry& entry);
  void tellAll(const QString& news);
  void follow(const QString& link);
  void showWindow(QMainWindow& window);

  Restorer restorer_;
  QPointer<QMainWindow> window_;
  QPointer<HistoryWindow> list_;
  std::uint64_t last_ = 0;     ///< the entry that the link puts back
  std::uint64_t handler_ = 0;  ///< in which that was lost
  int others_ = 0;             ///< that were kept in the same one
};

}  // namespace norvik::desktop
