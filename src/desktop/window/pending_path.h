#pragma once
// A path that was typed and that no tool has taken yet.

#include "desktop/maker.h"
#include "front/opening.h"

#include <QObject>
#include <QString>

class QLabel;
class QLineEdit;

namespace norvik::desktop {

/// Watches a path box: what is typed into it counts only once Enter, or a double click, has taken
/// it, and until then a hint beside the box says so.
class PendingPath : public QObject {
 public:
  /// The path box `box` with its label, drawn as `edit`; it is `edit`'s child.
  PendingPath(Maker& maker, front::TextBox& box, front::Label& label, QLineEdit& edit,
              QLabel& hint);

  bool pending() const;
  QString name() const;

 private:
  void take();
  void showHint();

  front::TextBox& box_;
  front::Label& label_;
  QLineEdit& edit_;
  QLabel& hint_;
  QString taken_;
};

}  // namespace norvik::desktop
