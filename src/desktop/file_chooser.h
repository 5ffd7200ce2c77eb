#pragma once
// The dialog that a file is chosen in.

#include "desktop/asker.h"

#include <QFileDialog>

namespace norvik::desktop {

/// A file dialog that takes a path of either kind, typed or pasted: one of the host and one on a
/// drive, C:\Poser\... A folder is entered, a file is chosen.
class FileChooser : public QFileDialog {
 public:
  FileChooser(const Asker::File& file, QWidget* owner);

  /// What was chosen, a host path; empty for the further button.
  QString chosen() const;

  /// Whether the further button was the answer.
  bool answersOtherwise() const { return instead_; }

  void accept() override;

 private:
  void addHint(const QString& hint);
  void addInstead(const QString& text);
  QString typedPath(const QString& text) const;

  Asker::File file_;
  bool instead_ = false;  ///< the further button was pressed
  QString typed_;         ///< the whole path that was typed
};

}  // namespace norvik::desktop
