#pragma once
// The renames of a mesh that are not written yet.

#include "desktop/maker.h"
#include "front/form_obj.h"

#include <QListWidget>

class QLabel;
class QPushButton;

namespace norvik::desktop {

/// Names the pending renames of groups or of materials below the names themselves, while there are
/// any. The button and the Delete key take the chosen one back; what went with it is said below.
class PendingList : public QWidget {
 public:
  enum class Kind { groups, materials };

  PendingList(Maker& maker, front::FormOBJ& form, Kind kind, QWidget& parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void fill();
  void takeBack();

  Maker& maker_;
  front::FormOBJ& form_;
  Kind kind_;
  front::ListBox& renames_;
  front::ListBox& names_;
  front::RichTextBox& listing_;
  front::ListBox& saved_;
  QListWidget* list_;
  QPushButton* back_;
  QLabel* also_;
  std::uint64_t seen_ = 0;  ///< changes of the renames
};

}  // namespace norvik::desktop
