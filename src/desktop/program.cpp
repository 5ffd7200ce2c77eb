#include "desktop/program.h"

#include "desktop/drives.h"
#include "desktop/theme.h"
#include "desktop/window/place.h"
#include "lifecycle/given_file.h"

#include <QApplication>
#include <QIcon>

namespace norvik::desktop {

Program::Program(const Options& options, Asker& asker)
    : posix_(text::makePosixHost()),
      host_(*posix_),
      history_(host_, historyFolder()),
      disk_(host_) {
  disk_.setHistory(&history_);
  const std::string programFolder = programFolderOf(options);
  setUpDrives(disk_, options, programFolder);
  settings_ = std::make_unique<front::Settings>(*posix_, settingsFileOf(options));

  const QPalette system = QApplication::palette();
  QApplication::setStyle(makeStyle());
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/norvik.svg")));
  QApplication::setQuitOnLastWindowClosed(false);
  const Theme theme = themeNamed(settings_->get(kWindowSection, kThemeKey, "system"));
  QApplication::setPalette(paletteOf(theme, system));

  frontEnd_ = std::make_unique<DesktopFrontEnd>(dispatcher_, asker, disk_);
  const std::string file = options.file.empty() ? std::string{} : systemPathOf(disk_, options.file);
  workbench_ =
      std::make_unique<workbench::Workbench>(*frontEnd_, disk_, *settings_, programFolder, file);
  dispatcher_.attach(workbench_->session());
  windows_ = std::make_unique<Windows>(dispatcher_, workbench_->session(), *frontEnd_, system);
  historyTools_ = std::make_unique<HistoryTools>(
      Restorer(dispatcher_, workbench_->session(), *frontEnd_, asker), windows_->mainWindow());
  guide_ = std::make_unique<Guide>(*frontEnd_, windows_->mainWindow());
  host_.setPump([this](const PumpingHost::Progress& progress) {
    windows_->breathe(progress.position, progress.size);
  });
  host_.setCheck([this] { frontEnd_->passStop().check(); });
}

Program::~Program() = default;

void Program::start() {
  dispatcher_.run([this] { workbench_->start(); });
  dispatcher_.run([this] { lifecycle::openGivenFile(workbench_->session()); });
}

}  // namespace norvik::desktop
