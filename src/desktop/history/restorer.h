#pragma once
// The way back for the operator at the window.

#include "desktop/asker.h"
#include "desktop/desktop_front_end.h"
#include "desktop/dispatcher.h"
#include "front/session.h"
#include "text/history.h"

#include <cstdint>
#include <string>

namespace norvik::desktop {

/// Puts old versions back. A file that is open in a pane is listed again; errors are shown as those
/// of any tool.
class Restorer {
 public:
  Restorer(Dispatcher& dispatcher, front::Session& session, DesktopFrontEnd& frontEnd, Asker& asker)
      : dispatcher_(dispatcher), session_(session), frontEnd_(frontEnd), asker_(asker) {}

  text::History* history() const { return session_.disk.history(); }
  front::Session& session() const { return session_; }

  /// The handlers that ran so far: what is lost in the course of one belongs together.
  std::uint64_t handlers() const { return dispatcher_.delivered(); }

  /// Whether the version is back.
  bool restore(std::uint64_t number);
  /// Asks, naming the file, and puts the newest version back.
  void undoLast();

 private:
  void listAgain(const std::string& path);
  void openAgain(const std::string& path);
  void openSourceAgain(const std::string& path);

  Dispatcher& dispatcher_;
  front::Session& session_;
  DesktopFrontEnd& frontEnd_;
  Asker& asker_;
};

/// An entry in words: "norah.cr2, replaced by PictureCopyToDest on 2002-03-04 05:06:07".
QString inWords(const text::HistoryEntry& entry);

}  // namespace norvik::desktop
