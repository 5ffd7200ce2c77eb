#pragma once
// The keys of a list of names that can be changed.

#include "desktop/maker.h"

#include <QObject>

class QLineEdit;

namespace norvik::desktop {

/// F2 and Return let the name of the row be typed over in its place, Delete marks it to be dropped.
/// Each does what the box for the new name would do with the same text and its return key. The name
/// as it was, and no name at all, change nothing when they are typed.
class NameKeys : public QObject {
 public:
  NameKeys(Maker& maker, front::ListBox& names, front::TextBox& box, ListView& view);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const ListModel& items() const;
  void edit();
  void leave();
  void take();
  void give(int item, const std::string& name);

  Maker& maker_;
  front::ListBox& names_;
  front::TextBox& box_;
  ListView& view_;
  QLineEdit* line_;  ///< over the row, while it is typed in
  int item_ = front::ListBox::kNone;
  std::string old_;
};

}  // namespace norvik::desktop
