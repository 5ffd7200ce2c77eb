#pragma once
// The program, put together.

#include "desktop/asker.h"
#include "desktop/desktop_front_end.h"
#include "desktop/dispatcher.h"
#include "desktop/guide/guide.h"
#include "desktop/history/history_tools.h"
#include "desktop/options.h"
#include "desktop/pumping_host.h"
#include "desktop/windows.h"
#include "front/settings.h"
#include "text/disk.h"
#include "text/history.h"
#include "workbench/workbench.h"

#include <memory>

namespace norvik::desktop {

/// Everything that lives as long as the window does. An application object must exist, and the
/// program's looks are set on it.
class Program {
 public:
  /// Throws workbench::BadOption for folders that cannot be used, FileError for settings that
  /// cannot be read.
  Program(const Options& options, Asker& asker);
  ~Program();

  /// Shows the window and runs the start of the program.
  void start();

  front::Session& session() { return workbench_->session(); }
  Dispatcher& dispatcher() { return dispatcher_; }
  DesktopFrontEnd& frontEnd() { return *frontEnd_; }
  MainWindow& mainWindow() { return windows_->mainWindow(); }

 private:
  std::unique_ptr<text::HostOps> posix_;
  PumpingHost host_;
  text::History history_;
  text::Disk disk_;
  std::unique_ptr<front::Settings> settings_;
  Dispatcher dispatcher_;
  std::unique_ptr<DesktopFrontEnd> frontEnd_;
  std::unique_ptr<workbench::Workbench> workbench_;
  std::unique_ptr<Windows> windows_;
  std::unique_ptr<HistoryTools> historyTools_;
  std::unique_ptr<Guide> guide_;
};

}  // namespace norvik::desktop
