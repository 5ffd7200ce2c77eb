#pragma once
// A page of text of any size and the pane that it shows.

#include "desktop/bind/widget_binding.h"
#include "front/text_pane.h"

namespace norvik::desktop {

class PageView;

/// The page draws the pane's own text; what the operator does at the page is done in the pane.
class PaneBinding : public WidgetBinding {
 public:
  PaneBinding(Dispatcher& dispatcher, front::TextPane& pane, PageView& view);

 protected:
  void refresh() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  // The page itself takes keys and mouse, and tells when they have done their work.
  bool mousePressed(const QMouseEvent&) override { return false; }
  bool mouseReleased(const QMouseEvent&) override { return false; }
  bool mouseDoubleClicked(const QMouseEvent&) override { return false; }
  void mouseMoved(const QMouseEvent&) override {}
  bool keyPressed(const QKeyEvent&) override { return false; }

 private:
  void edit(const std::function<void()>& act);

  front::TextPane& pane_;
  PageView& view_;
};

}  // namespace norvik::desktop
