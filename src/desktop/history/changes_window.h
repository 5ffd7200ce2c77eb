#pragma once
// The window that shows how two files differ.

#include <QString>

#include <string>

class QWidget;

namespace norvik::desktop {

/// What is held against what.
struct ComparedFiles {
  std::string before;  ///< host files
  std::string after;
  QString title;
  QString explanation;  ///< which is which, in a line
};

/// Compares two files and shows the lines that differ until the operator has seen enough. It writes
/// nothing.
void showChanges(const ComparedFiles& files, QWidget* parent);

}  // namespace norvik::desktop
