#pragma once
// Boxes of text on the screen.

#include "desktop/bind/widget_binding.h"
#include "front/text_controls.h"

class QLineEdit;
class QPlainTextEdit;

namespace norvik::desktop {

/// A text box of one line. Where a double click takes what was typed, Enter does so too.
class LineBinding : public WidgetBinding {
 public:
  LineBinding(Dispatcher& dispatcher, front::TextBox& box, QLineEdit& edit, QWidget& widget);

 protected:
  void refresh() override;
  bool mousePressed(const QMouseEvent& event) override;
  bool mouseDoubleClicked(const QMouseEvent& event) override;
  bool keyPressed(const QKeyEvent& event) override;

 private:
  void takeCaret();

  front::TextBox& box_;
  QLineEdit& edit_;
};

/// A text box of many lines.
class PageBinding : public WidgetBinding {
 public:
  PageBinding(Dispatcher& dispatcher, front::TextBox& box, QPlainTextEdit& edit);

 protected:
  void refresh() override;
  bool mousePressed(const QMouseEvent& event) override;
  bool mouseDoubleClicked(const QMouseEvent& event) override;
  bool keyPressed(const QKeyEvent& event) override;

 private:
  void takeText();
  void takeCaret();
  void paintLines();

  front::TextBox& box_;
  QPlainTextEdit& edit_;
};

}  // namespace norvik::desktop
