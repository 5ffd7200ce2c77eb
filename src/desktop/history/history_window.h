#pragma once
// The list of the old versions that are kept.

#include "desktop/history/restorer.h"

#include <QDialog>

#include <cstdint>
#include <optional>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace norvik::desktop {

/// View, History...: what was kept, newest first, with a filter. Nothing happens to a file before
/// Restore is pressed.
class HistoryWindow : public QDialog {
 public:
  HistoryWindow(Restorer& restorer, QWidget* parent);

  /// Reads the store anew.
  void refresh();

 protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void makeLayout();
  void applyFilter();
  void updateButtons();
  std::optional<text::HistoryEntry> chosen() const;
  void restoreChosen();
  void showChosen();
  void revealChosen();

  Restorer& restorer_;
  std::vector<text::HistoryEntry> entries_;
  QLineEdit* filter_;
  QTreeWidget* list_;
  QLabel* state_;
  QPushButton* restore_;
  QPushButton* changes_;
  QPushButton* reveal_;
};

}  // namespace norvik::desktop
