#pragma once
// The lists in which the operator walks to a folder.

#include "desktop/bind/widget_binding.h"
#include "front/file_lists.h"

#include <QStringList>

#include <string>
#include <vector>

class QComboBox;
class QListWidget;

namespace norvik::desktop {

/// A folder list: the folders above the one on view, each a step further in, that one itself, and
/// what folders it holds. A double click goes there, as Space and the right arrow do; the left
/// arrow and Backspace go one up. Enter does so where no tool waits for it.
class FolderListBinding : public WidgetBinding {
 public:
  FolderListBinding(Dispatcher& dispatcher, front::FolderList& folders, QListWidget& list);

 protected:
  void refresh() override;
  bool keyPressed(const QKeyEvent& event) override;
  bool mouseDoubleClicked(const QMouseEvent& event) override;

 private:
  void go(const std::string& path);
  void goToRow(int row);
  void goUp();

  front::FolderList& folders_;
  QListWidget& list_;
  std::vector<std::string> paths_;  ///< of the rows
};

/// A drive list, with the host folder that each drive stands for.
class DriveListBinding : public WidgetBinding {
 public:
  DriveListBinding(Dispatcher& dispatcher, front::DriveList& drives, QComboBox& combo);

 protected:
  void refresh() override;

 private:
  void pick(int row);

  front::DriveList& drives_;
  QComboBox& combo_;
};

}  // namespace norvik::desktop
