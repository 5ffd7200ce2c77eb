#pragma once
// An operator at the real window: mouse, keyboard, and an answer for each box and dialog that comes
// up.

#include "desktop/program.h"

#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace norvik::desktop {

/// Ends the process at once: an exception must not pass through the window's event handlers.
[[noreturn]] void giveUp(const std::string& why);

class Operator {
 public:
  explicit Operator(Program& program);

  /// What the operator will say to the next question; a box with OK alone needs no answer.
  void willPress(const QString& button);
  /// What the operator will paste into the next file dialog, a host path.
  void willChoose(const QString& path);
  /// Looks at the next box or dialog before it is answered.
  void willLook(std::function<void(QWidget&)> look);

  QWidget& find(const QString& control) const;
  void click(const QString& control);
  void rightClick(const QString& control);
  void doubleClick(const QString& control);
  void hover(const QString& control);
  void clickItem(const QString& list, const QString& text);
  void type(const QString& box, const QString& text);
  /// Chooses an entry with the mouse, through the menus above it.
  void menu(const QStringList& path);
  void shortcut(Qt::Key key, Qt::KeyboardModifiers modifiers);

  /// The texts of the boxes that came up.
  const std::vector<QString>& boxes() const { return boxes_; }
  /// Whether all that the operator had in mind was asked for.
  bool done() const { return buttons_.empty() && paths_.empty(); }

 private:
  void answer();

  Program& program_;
  QTimer eyes_;
  std::deque<QString> buttons_;
  std::deque<QString> paths_;
  std::deque<std::function<void(QWidget&)>> looks_;
  std::vector<QString> boxes_;
};

}  // namespace norvik::desktop
