#pragma once
// A line above a list that hides what does not hold what is typed into it.

#include "desktop/bind/list_view.h"
#include "desktop/maker.h"

#include <QLineEdit>

namespace norvik::desktop {

/// Rows are hidden on the screen alone: the list and its indexes stay what they are, and another
/// content of the list is filtered in the same way. Down goes on to the list, Escape empties the
/// line, and closes the window where it is empty.
class FilterLine : public QLineEdit {
 public:
  FilterLine(Maker& maker, front::ListBox& list, ListView& view, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void apply();
  void goToList();

  front::ListBox& list_;
  ListView& view_;
};

}  // namespace norvik::desktop
