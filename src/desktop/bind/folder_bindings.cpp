#include "desktop/bind/folder_bindings.h"

#include "desktop/words.h"
#include "front/form.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QStyle>

namespace norvik::desktop {

namespace {

constexpr int kStep = 2;  // blanks

/// The folders from the root to a path, itself included.
std::vector<std::string> waysTo(const std::string& path) {
  std::vector<std::string> ways;
  const auto root = path.find('\\');
  if (root == std::string::npos) return {path};
  ways.push_back(path.substr(0, root + 1));
  for (auto end = path.find('\\', root + 1); ways.back() != path; end = path.find('\\', end + 1)) {
    ways.push_back(path.substr(0, end));
    if (end == std::string::npos) break;
  }
  return ways;
}

std::string below(const std::string& folder, const std::string& name) {
  return folder + (folder.ends_with('\\') ? "" : "\\") + name;
}

std::string_view nameOf(const std::string& path) {
  return path.ends_with('\\') ? std::string_view{path} : text::fileTitle(path);
}

}  // namespace

FolderListBinding::FolderListBinding(Dispatcher& dispatcher, front::FolderList& folders,
                                     QListWidget& list)
    : WidgetBinding(dispatcher, folders, list, Clicks::own), folders_(folders), list_(list) {
  list.setUniformItemSizes(true);
  watch(*list.viewport());
}

void FolderListBinding::refresh() {
  list_.clear();
  paths_.clear();
  if (folders_.path().empty() || !dispatcher().attached()) return WidgetBinding::refresh();
  const QIcon open = list_.style()->standardIcon(QStyle::SP_DirOpenIcon);
  const QIcon closed = list_.style()->standardIcon(QStyle::SP_DirIcon);
  const auto add = [this](const QIcon& icon, std::size_t depth, const std::string& path) {
    const QString indent(static_cast<int>(depth) * kStep, QChar::Nbsp);
    auto* row = new QListWidgetItem(icon, indent + shown(nameOf(path)), &list_);
    row->setToolTip(shown(path));
    paths_.push_back(path);
  };
  const std::vector<std::string> ways = waysTo(folders_.path());
  for (std::size_t depth = 0; depth < ways.size(); ++depth) add(open, depth, ways[depth]);
  text::ignoringErrors([&] {
    for (const std::string& name : dispatcher().session().disk.foldersIn(folders_.path())) {
      add(closed, ways.size(), below(folders_.path(), name));
    }
  });
  list_.setCurrentRow(static_cast<int>(ways.size()) - 1);
  list_.scrollToItem(list_.currentItem());
  WidgetBinding::refresh();
}

void FolderListBinding::go(const std::string& path) {
  if (!accepts()) return;
  if (!front::walkTo(dispatcher().session().disk, folders_, path)) return update();
  raise(folders_.changed);
}

void FolderListBinding::goToRow(int row) {
  if (row < 0 || row >= static_cast<int>(paths_.size())) return;
  go(std::string{paths_[static_cast<std::size_t>(row)]});
}

void FolderListBinding::goUp() {
  const std::vector<std::string> ways = waysTo(folders_.path());
  if (ways.size() > 1) go(ways[ways.size() - 2]);
}

bool FolderListBinding::keyPressed(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Space:
    case Qt::Key_Right:
      goToRow(list_.currentRow());
      return true;
    case Qt::Key_Left:
    case Qt::Key_Backspace:
      goUp();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (folders_.key.hasHandlers()) return WidgetBinding::keyPressed(event);
      goToRow(list_.currentRow());
      return true;
    case Qt::Key_Escape:
      return false;
    default:
      return WidgetBinding::keyPressed(event);
  }
}

bool FolderListBinding::mouseDoubleClicked(const QMouseEvent& event) {
  const QListWidgetItem* item = list_.itemAt(event.position().toPoint());
  if (event.button() == Qt::LeftButton && item != nullptr) goToRow(list_.row(item));
  return true;
}

DriveListBinding::DriveListBinding(Dispatcher& dispatcher, front::DriveList& drives,
                                   QComboBox& combo)
    : WidgetBinding(dispatcher, drives, combo, Clicks::own), drives_(drives), combo_(combo) {
  connect(&combo, &QComboBox::activated, this, [this](int row) { pick(row); });
}

void DriveListBinding::refresh() {
  combo_.clear();
  if (dispatcher().attached()) {
    const text::Disk& disk = dispatcher().session().disk;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
      if (!disk.hasDrive(letter)) continue;
      const std::string drive{letter, ':'};
      QString host;
      text::ignoringErrors([&] { host = hostName(disk.hostPath(drive + "\\")); });
      combo_.addItem(shown(drive) + QStringLiteral("  ") + host, shown(drive));
    }
  }
  combo_.setCurrentIndex(combo_.findData(shown(drives_.path())));
  WidgetBinding::refresh();
}

void DriveListBinding::pick(int row) {
  if (!accepts()) return;
  const std::string drive = typed(combo_.itemData(row).toString());
  if (!front::pickDrive(dispatcher().session().disk, drives_, drive)) return update();
  raise(drives_.changed);
  if (drives_.folders() != nullptr) raise(drives_.folders()->changed);
}

}  // namespace norvik::desktop
