#pragma once
// The box that narrows a long list.

#include "desktop/bind/list_view.h"
#include "front/list_box.h"

#include <QWidget>

class QLabel;
class QLineEdit;

namespace norvik::desktop {

/// A line above a list: what is typed there is what the shown items hold. The list itself, its
/// indexes and what is selected stay as they are; the line says how much of them is not shown.
/// Escape shows all again and goes back to the list, Enter and Down go to the list.
class ListFilter : public QWidget {
 public:
  ListFilter(front::ListBox& list, ListView& view, QWidget& parent);

  /// Shows the line and takes the keys.
  void open();
  /// Shows the line for good: Escape empties it, and what comes after that is the window's.
  void stay();
  /// Shows all items again and goes back to the list.
  void dismiss();

  const front::ListBox& list() const { return list_; }
  const ListView& view() const { return view_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void count();

  front::ListBox& list_;
  ListView& view_;
  QLineEdit* edit_;
  QLabel* count_;
  bool stays_ = false;
};

/// Opens the filter in whose part of the window the keys are, else that of a list; none whose list
/// is not on view. Without a list it is the first one on view.
void openFilter(QWidget& window, const front::ListBox* otherwise = nullptr);

}  // namespace norvik::desktop
