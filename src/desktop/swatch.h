#pragma once
// A button that shows a colour.

#include <QAbstractButton>

namespace norvik::desktop {

/// Shows its property "shade" beside its name; the resting colour of the tools shows as no colour.
class Swatch : public QAbstractButton {
 public:
  explicit Swatch(QWidget* parent) : QAbstractButton(parent) { setFocusPolicy(Qt::TabFocus); }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace norvik::desktop
