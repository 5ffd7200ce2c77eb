#pragma once
// The list on the screen.

#include "desktop/bind/list_model.h"

#include <QElapsedTimer>
#include <QListView>

#include <functional>

namespace norvik::desktop {

/// A list view that tells what the operator did with the mouse and the keyboard after the view has
/// made of it what a view does, and that finds an item as it is typed, blanks before it ignored.
class ListView : public QListView {
 public:
  explicit ListView(QWidget* parent = nullptr);

  void keyboardSearch(const QString& text) override;
  /// Two rows: a window on a small screen takes the room for the rest from its lists.
  QSize minimumSizeHint() const override;

  struct Acts {
    std::function<void(const QMouseEvent&)> pressed;
    std::function<void(const QMouseEvent&)> released;
    std::function<void()> doubleClicked;
    std::function<bool(const QKeyEvent&)> key;
    std::function<bool()> mayDrag;
    std::function<void()> drag;
    std::function<void(const QString&)> filter;
  };
  void setActs(Acts acts) { acts_ = std::move(acts); }

  /// Shows no more than the items that hold a text; an empty one shows all. What is selected stays
  /// so, shown or not.
  void setFilter(const QString& text) {
    if (acts_.filter) acts_.filter(text);
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Acts acts_;
  QPoint pressedAt_;
  bool pressed_ = false;
  bool doubleClick_ = false;
  QString sought_;
  QElapsedTimer sinceKey_;
};

}  // namespace norvik::desktop
