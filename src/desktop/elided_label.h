#pragma once
// A label that gives way.

#include <QLabel>

namespace norvik::desktop {

/// A label that shows the end of its text when it has not the room for all of it: the file's name
/// rather than its drive. The whole text is its tool tip then.
class ElidedLabel : public QLabel {
 public:
  using QLabel::QLabel;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace norvik::desktop
