#pragma once
// FormRemoveFiles in a window.

#include "desktop/forms/form_windows.h"
#include "install/form_remove_files.h"

#include <optional>
#include <vector>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace norvik::desktop {

/// The files with their sizes; what is done with those that are selected below.
class RemoveFilesWindow : public FormWindow {
 public:
  RemoveFilesWindow(const WindowParts& parts, install::FormRemoveFiles& form);

 private:
  /// What the disk says of a listed file.
  struct Fact {
    std::optional<std::uint64_t> size;  ///< none of a missing one
    bool readOnly = false;
  };

  void addFiles(QVBoxLayout& column);
  void addOptions(QVBoxLayout& column);
  void look();
  void weigh();
  QString note(int row) const;

  front::Session& session_;
  install::FormRemoveFiles& form_;
  std::vector<Fact> facts_;
  std::uint64_t looked_ = 0;  ///< the list's changes when it was looked at
  QLabel* total_ = nullptr;
  QPushButton* go_ = nullptr;
};

}  // namespace norvik::desktop
