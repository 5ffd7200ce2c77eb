#pragma once
// What lies over the panes for a while.

#include <QFrame>

#include <functional>
#include <utility>

namespace norvik::desktop {

/// A card over its parent. It keeps its place when the parent changes its size, and lies on top
/// when it appears.
class Overlay : public QFrame {
 public:
  /// Where the card lies, from the parent's own area and the size that the card would like.
  using Placer = std::function<QRect(const QRect& area, const QSize& wanted)>;

  Overlay(QWidget& parent, Placer placer);
  void place();
  /// What the escape key does while the keys are with the card.
  void setOnEscape(std::function<void()> act) { onEscape_ = std::move(act); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Placer placer_;
  std::function<void()> onEscape_;
};

/// In the middle, of a size of its own or smaller.
QRect inTheMiddle(const QRect& area, const QSize& wanted);

}  // namespace norvik::desktop
