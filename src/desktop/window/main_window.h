#pragma once
// The main form in a window.

#include "desktop/bind/menu_binding.h"
#include "desktop/desktop_front_end.h"
#include "desktop/maker.h"
#include "desktop/theme.h"
#include "desktop/window/curtain.h"
#include "desktop/window/pending_path.h"
#include "desktop/window/status_line.h"

#include <QMainWindow>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class QSplitter;

namespace norvik::desktop {

/// The window of Opening: menus, tools, panes and what lies over them. It draws and passes on; what
/// is seen is the controls' affair.
class MainWindow : public QMainWindow {
 public:
  MainWindow(Maker& maker, front::Session& session, DesktopFrontEnd& frontEnd,
             const QPalette& system);
  ~MainWindow() override;

  void setBusy(bool busy) { status_->setBusy(busy); }
  void say(const QString& text) { status_->say(text); }
  void setProgress(std::uint64_t position, std::uint64_t size) {
    status_->setProgress(position, size);
  }
  bool drawTile(int left, int top);

  /// What is not a control's: the title, the state of the window.
  void sync();
  /// A handler has come to its end.
  void rest();
  void restorePlace();
  void keepPlace();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void makeCentre();
  void makeMenus();
  void bindTheRest();
  void openDropped(const std::string& path, bool asSource);
  void chooseTheme(Theme theme);
  void chooseClosingAnimation(bool on);
  bool showsClosingAnimation() const;
  void listenToMenus();
  void tellOfUntakenPaths();
  void tellOf(const front::FinishedFile& file);
  void saveCopyOf(const std::string& path);
  void showDisplaced(const front::FinishedFile& file);
  void scrollToTops();

  Maker& maker_;
  front::Session& session_;
  front::Opening& opening_;
  DesktopFrontEnd& frontEnd_;
  QPalette system_;
  std::unique_ptr<MenuTree> menus_;
  std::unique_ptr<StatusLine> status_;
  std::vector<PendingPath*> paths_;
  QWidget* sourcePane_ = nullptr;
  Curtain* curtain_ = nullptr;
  front::WindowState drawnState_ = front::WindowState::normal;
  bool opens_ = false;            ///< the handler that runs may open a file
  std::uint64_t listed_ = 0;      ///< changes of the lists until the last handler's end
  std::optional<bool> animated_;  ///< whether the closing animation is shown, once that is known
};

}  // namespace norvik::desktop
