#pragma once
// What all controls on the screen have in common.

#include "desktop/bind/binding.h"

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <string>

class QDropEvent;
class QKeyEvent;
class QMouseEvent;
class QPointF;

namespace norvik::desktop {

/// Gives a widget the control's name and keeps its visibility, state and tool tip; delivers the
/// mouse, keys and drops. A widget stands for a control in a window that may decide where it
/// appears, but never whether.
class WidgetBinding : public Binding, public QObject {
 public:
  /// How clicks come about: from the mouse on the whole widget, or from the widget's own signals.
  enum class Clicks { fromMouse, own };

  WidgetBinding(Dispatcher& dispatcher, front::Control& control, QWidget& widget,
                Clicks clicks = Clicks::fromMouse);

  QWidget& widget() const { return *widget_; }
  /// Lets somebody else show and hide the widget, a tool bar for example.
  void setShower(std::function<void(bool)> shower);

 protected:
  void refresh() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  /// The widget that gets the mouse.
  void watch(QWidget& widget);
  /// Where in the control a place of the widget is.
  virtual QPoint placeOf(const QPointF& place) const;
  front::Mouse mouseOf(const QMouseEvent& event) const;
  virtual bool mousePressed(const QMouseEvent& event);
  virtual bool mouseReleased(const QMouseEvent& event);
  virtual void mouseMoved(const QMouseEvent& event);
  virtual bool mouseDoubleClicked(const QMouseEvent& event);
  virtual bool keyPressed(const QKeyEvent& event);
  /// What a click does, from the mouse or the keyboard.
  void clickByKey();

 private:
  bool dragOver(QDropEvent& event) const;
  bool dropped(const QDropEvent& event);
  void showTip();

  QPointer<QWidget> widget_;
  Clicks clicks_;
  std::function<void(bool)> shower_;
  bool doubleClick_ = false;
  QString ownTip_;  ///< of the widget, for a control that has none
  std::string shownTip_;
};

/// A key as the tools know it: "Enter", "Ctrl+F1", or the character; empty for a bare modifier.
std::string keyName(const QKeyEvent& event);

}  // namespace norvik::desktop
